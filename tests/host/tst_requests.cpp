// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingSite.h"
#include "PropertiesDialog.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"

#include <QTest>

class tst_requests : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void requestedPaperIsShownAndPrinted_data();
    void requestedPaperIsShownAndPrinted();
    void pickedPaperReplacesTheRequestedOne();
    void requestedPaperNeedsAPrinterThatHasIt();
    void requestedPaperRulesThePanel();
    void savedPaperIsShownAndPrinted();
    void savedChoicesAreShownAndPrinted();
    void savedChoicesArePrintedUnseen();
    void requestedChoicesOverrideSavedOnes();
    void savedChoicesOfAnotherPrinter();
    void savedChoiceThatThePrinterLacks();
    void requestsAreShown();
    void requestsSurviveTheTurnOfTabs();
    void choiceThatCannotBeChosenIsReported_data();
    void choiceThatCannotBeChosenIsReported();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_requests::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void tst_requests::init()
{
    QVERIFY(mSite.saveUserOptions(""));
}

void tst_requests::requestedPaperIsShownAndPrinted_data()
{
    QTest::addColumn<bool>("accept");
    QTest::newRow("properties accepted") << true;
    QTest::newRow("properties cancelled") << false;
}

void tst_requests::requestedPaperIsShownAndPrinted()
{
    QFETCH(const bool, accept);
    const QString paper = QStringLiteral("T24x100");
    AttachedDialog dialog(QStringLiteral("tape"), {u"media="_s + paper});
    QVERIFY(dialog.user().open());
    QCOMPARE(dialog.attachment().host()->paper().ppdPaperName(), paper);
    for (int i = 0; i < 2; ++i) {
        QString shown;
        QVERIFY(PropertiesDialog::with(dialog.user(), accept, [&](const QDialog &properties) {
            shown = PropertiesDialog::paper(properties);
        }));
        QCOMPARE(shown, paper);
    }
    QCOMPARE(dialog.attachment().host()->paper().ppdPaperName(), paper);
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), paper);
}

void tst_requests::pickedPaperReplacesTheRequestedOne()
{
    AttachedDialog dialog(QStringLiteral("tape"), {QStringLiteral("PageSize=T24x100")});
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPaper(QStringLiteral("T6x100")));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("T6x100"));
}

void tst_requests::requestedPaperNeedsAPrinterThatHasIt()
{
    AttachedDialog dialog(QStringLiteral("tape"), {QStringLiteral("media=T24x100")});
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("label")));
    QCOMPARE(dialog.attachment().host()->paper().ppdPaperName(), QStringLiteral("62x29"));
    int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("62x29"));

    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("mark")));
    job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("T24x100"));
}

void tst_requests::requestedPaperRulesThePanel()
{
    AttachedDialog dialog(QStringLiteral("tape"), {QStringLiteral("media=FL21x45")});
    QVERIFY(dialog.openTab());
    QVERIFY(!PanelUser(dialog.user()).isEnabled(QStringLiteral("mHalfCutChkBx")));
    AttachedDialog custom(QStringLiteral("tape"), {QStringLiteral("media=Custom.20x50mm")});
    QCOMPARE(custom.attachment().host()->paper().ppdPaperName(), QStringLiteral("Custom"));
    QVERIFY(std::abs(custom.attachment().host()->paper().height() - 50.0 / 25.4 * 72.0) < 0.5);
}

void tst_requests::savedPaperIsShownAndPrinted()
{
    QVERIFY(mSite.saveUserOptions("Dest tape PageSize=FL21x45\n"));
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    QVERIFY(!PanelUser(dialog.user()).isEnabled(QStringLiteral("mHalfCutChkBx")));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("FL21x45"));
}

void tst_requests::savedChoicesAreShownAndPrinted()
{
    QVERIFY(mSite.saveUserOptions("Dest follow KvHalfCut=ON KvMirror=ON KvCutLabel=25\n"));
    AttachedDialog dialog(QStringLiteral("follow"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.isTicked(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(panel.isTicked(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(!panel.isTicked(QStringLiteral("mChainPrintChkBx")));
    QCOMPARE(panel.count(), QStringLiteral("25"));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.choices(job),
             QStringList({u"KvAutoTapeCut=ON"_s, u"KvChainPrint=OFF"_s, u"KvCutLabel=25"_s,
                          u"KvHalfCut=ON"_s, u"KvMirror=ON"_s}));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_requests::savedChoicesArePrintedUnseen()
{
    QVERIFY(mSite.saveUserOptions("Dest follow KvHalfCut=ON KvCutLabel=25\n"));
    AttachedDialog dialog(QStringLiteral("follow"));
    QVERIFY(dialog.user().open());
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.choices(job),
             QStringList({u"KvAutoTapeCut=OFF"_s, u"KvChainPrint=OFF"_s, u"KvCutLabel=25"_s,
                          u"KvHalfCut=ON"_s, u"KvMirror=OFF"_s}));
}

void tst_requests::requestedChoicesOverrideSavedOnes()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON KvChainPrint=ON\n"));
    AttachedDialog dialog(QStringLiteral("tape"), {QStringLiteral("KvHalfCut=OFF KvMirror=ON")});
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(!panel.isTicked(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(panel.isTicked(QStringLiteral("mChainPrintChkBx")));
    QVERIFY(panel.isTicked(QStringLiteral("mMirrorPrintChkBx")));
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QVERIFY(choices.contains(u"KvHalfCut=OFF"));
    QVERIFY(choices.contains(u"KvChainPrint=ON"));
    QVERIFY(choices.contains(u"KvMirror=ON"));
}

void tst_requests::savedChoicesOfAnotherPrinter()
{
    QVERIFY(mSite.saveUserOptions("Dest mark KvCutMark=ON\nDest tape KvHalfCut=ON\n"));
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.isTicked(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("mark")));
    QVERIFY(panel.openTab());
    QVERIFY(panel.isTicked(QStringLiteral("mCutMarkChkBx")));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.choices(job), QStringList({u"KvAutoTapeCut=OFF"_s, u"KvChainPrint=OFF"_s,
                                              u"KvCutMark=ON"_s, u"KvMirror=OFF"_s}));
}

void tst_requests::savedChoiceThatThePrinterLacks()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=MAYBE KvMirror=ON\n"));
    AttachedDialog dialog(QStringLiteral("tape"));
    QCOMPARE(dialog.problems(),
             QStringList({u"KvHalfCut=MAYBE: the choices of KvHalfCut are: OFF, ON"_s}));
    QVERIFY(dialog.openTab());
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QVERIFY(choices.contains(u"KvHalfCut=OFF"));
    QVERIFY(choices.contains(u"KvMirror=ON"));
    QCOMPARE(dialog.problems().size(), 1);
}

void tst_requests::requestsAreShown()
{
    AttachedDialog dialog(QStringLiteral("label"),
                          {QStringLiteral("KvCutLabel=33 KvCutAtEnd=ON KvHalfCut=ON")});
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QCOMPARE(panel.count(), QStringLiteral("33"));
    QVERIFY(panel.isTicked(QStringLiteral("mCutAndEndChkBx")));
    QVERIFY(!panel.isTicked(QStringLiteral("mMirrorPrintChkBx")));
    QCOMPARE(panel.selectedPreset(), 4);
    // The printer has no half cut: that is no fault of the user's.
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_requests::requestsSurviveTheTurnOfTabs()
{
    AttachedDialog dialog(QStringLiteral("tape"), {QStringLiteral("KvHalfCut=ON KvChainPrint=ON")});
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.click(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(dialog.user().showTab(kSummaryTab));
    QVERIFY(dialog.user().showTab(kPanelTab));
    QVERIFY(!panel.isTicked(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(panel.isTicked(QStringLiteral("mChainPrintChkBx")));
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QVERIFY(choices.contains(u"KvHalfCut=OFF"));
    QVERIFY(choices.contains(u"KvChainPrint=ON"));
}

void tst_requests::choiceThatCannotBeChosenIsReported_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("request");
    QTest::addColumn<QString>("problem");
    const QString problem = QStringLiteral("%1 cannot be chosen on the paper %2 with the other "
                                           "settings; it stays OFF");
    QTest::newRow("half cut on flag paper") << u"tape"_s << u"KvHalfCut=ON media=FL24x60"_s
                                            << problem.arg(u"KvHalfCut=ON"_s, u"FL24x60"_s);
    QTest::newRow("chain printing on flag paper")
        << u"all"_s << u"KvChainPrint=ON media=FL21x45"_s
        << problem.arg(u"KvChainPrint=ON"_s, u"FL21x45"_s);
    QTest::newRow("removing blank space of die-cut paper")
        << u"all"_s << u"KvRemoveBlkSpace=ON media=DC24x24"_s
        << problem.arg(u"KvRemoveBlkSpace=ON"_s, u"DC24x24"_s);
    QTest::newRow("cut mark on tape") << u"all"_s << u"KvCutMark=ON KvMirror=ON"_s << QString();
}

void tst_requests::choiceThatCannotBeChosenIsReported()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, request);
    QFETCH(const QString, problem);
    AttachedDialog dialog(printer, {request});
    QCOMPARE(dialog.problems(), QStringList());
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.problems(), problem.isNull() ? QStringList() : QStringList{problem});
    const QString asked = request.section(u' ', 0, 0);
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QCOMPARE(choices.contains(asked), problem.isNull());
}

KV_TEST(tst_requests)
#include "tst_requests.moc"
