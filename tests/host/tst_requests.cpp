// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "PropertiesDialog.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"

#include <QTest>

class tst_requests : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_requests::requestedPaperIsShownAndPrinted_data()
{
    const TestTable<bool> table("accept");
    table.add("properties accepted", true);
    table.add("properties cancelled", false);
}

void tst_requests::requestedPaperIsShownAndPrinted()
{
    QFETCH(const bool, accept);
    const QString paper = u"T24x100"_s;
    AttachedDialog dialog(u"tape"_s, {u"media="_s + paper});
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
    QCOMPARE(mSite.job(job).value(u"media"_s), paper);
}

void tst_requests::pickedPaperReplacesTheRequestedOne()
{
    AttachedDialog dialog(u"tape"_s, {u"PageSize=T24x100"_s});
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPaper(u"T6x100"_s));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(u"media"_s), u"T6x100"_s);
}

void tst_requests::requestedPaperNeedsAPrinterThatHasIt()
{
    AttachedDialog dialog(u"tape"_s, {u"media=T24x100"_s});
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(u"label"_s));
    QCOMPARE(dialog.attachment().host()->paper().ppdPaperName(), u"62x29"_s);
    int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(u"media"_s), u"62x29"_s);

    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(u"mark"_s));
    job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(u"media"_s), u"T24x100"_s);
}

void tst_requests::requestedPaperRulesThePanel()
{
    AttachedDialog dialog(u"tape"_s, {u"media=FL21x45"_s});
    QVERIFY(dialog.openTab());
    QVERIFY(!dialog.panel().isEnabled(u"mHalfCutChkBx"_s));
    AttachedDialog custom(u"tape"_s, {u"media=Custom.20x50mm"_s});
    QCOMPARE(custom.attachment().host()->paper().ppdPaperName(), u"Custom"_s);
    QVERIFY(std::abs(custom.attachment().host()->paper().height() - 50.0 / 25.4 * 72.0) < 0.5);
}

void tst_requests::savedPaperIsShownAndPrinted()
{
    for (const QString &printer : {u"tape"_s, u"tape/draft"_s}) {
        QVERIFY(mSite.saveUserOptions(u"Dest %1 PageSize=FL21x45\n"_s.arg(printer).toUtf8()));
        AttachedDialog dialog(printer);
        QVERIFY(dialog.openTab());
        QCOMPARE(dialog.attachment().host()->paper().ppdPaperName(), u"FL21x45"_s);
        QVERIFY(!dialog.panel().isEnabled(halfCutBox));
        const int job = dialog.print(mSite.scheduler());
        QCOMPARE(mSite.job(job).value(u"media"_s), u"FL21x45"_s);
    }
}

void tst_requests::savedChoicesAreShownAndPrinted()
{
    QVERIFY(mSite.saveUserOptions("Dest follow KvHalfCut=ON KvMirror=ON KvCutLabel=25\n"));
    AttachedDialog dialog(u"follow"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.isTicked(u"mHalfCutChkBx"_s));
    QVERIFY(panel.isTicked(u"mMirrorPrintChkBx"_s));
    QVERIFY(!panel.isTicked(u"mChainPrintChkBx"_s));
    QCOMPARE(panel.count(), u"25"_s);
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())),
             QStringList({u"KvAutoTapeCut=ON"_s, u"KvChainPrint=OFF"_s, u"KvCutLabel=25"_s,
                          u"KvHalfCut=ON"_s, u"KvMirror=ON"_s}));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_requests::savedChoicesArePrintedUnseen()
{
    for (const QString &printer : {u"follow"_s, u"follow/draft"_s}) {
        QVERIFY(
            mSite.saveUserOptions(u"Dest %1 KvHalfCut=ON KvCutLabel=25\n"_s.arg(printer).toUtf8()));
        AttachedDialog dialog(printer);
        QVERIFY(dialog.user().open());
        QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())),
                 QStringList({u"KvAutoTapeCut=OFF"_s, u"KvChainPrint=OFF"_s, u"KvCutLabel=25"_s,
                              u"KvHalfCut=ON"_s, u"KvMirror=OFF"_s}));
        QCOMPARE(dialog.problems(), QStringList());
    }
}

void tst_requests::requestedChoicesOverrideSavedOnes()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=ON KvChainPrint=ON\n"));
    AttachedDialog dialog(u"tape"_s, {u"KvHalfCut=OFF KvMirror=ON"_s});
    QVERIFY(dialog.openTab());
    QVERIFY(!dialog.panel().isTicked(u"mHalfCutChkBx"_s));
    QVERIFY(dialog.panel().isTicked(u"mChainPrintChkBx"_s));
    QVERIFY(dialog.panel().isTicked(u"mMirrorPrintChkBx"_s));
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QVERIFY(choices.contains(u"KvHalfCut=OFF"));
    QVERIFY(choices.contains(u"KvChainPrint=ON"));
    QVERIFY(choices.contains(u"KvMirror=ON"));
}

void tst_requests::savedChoicesOfAnotherPrinter()
{
    QVERIFY(mSite.saveUserOptions("Dest mark KvCutMark=ON\nDest tape KvHalfCut=ON\n"));
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().isTicked(u"mHalfCutChkBx"_s));
    QVERIFY(dialog.user().pickPrinter(u"mark"_s));
    QVERIFY(dialog.panel().openTab());
    QVERIFY(dialog.panel().isTicked(u"mCutMarkChkBx"_s));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())),
             QStringList({u"KvAutoTapeCut=OFF"_s, u"KvChainPrint=OFF"_s, u"KvCutMark=ON"_s,
                          u"KvMirror=OFF"_s}));
}

void tst_requests::savedChoiceThatThePrinterLacks()
{
    QVERIFY(mSite.saveUserOptions("Dest tape KvHalfCut=MAYBE KvMirror=ON\n"));
    AttachedDialog dialog(u"tape"_s);
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
    AttachedDialog dialog(u"label"_s, {u"KvCutLabel=33 KvCutAtEnd=ON KvHalfCut=ON"_s});
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QCOMPARE(panel.count(), u"33"_s);
    QVERIFY(panel.isTicked(u"mCutAndEndChkBx"_s));
    QVERIFY(!panel.isTicked(u"mMirrorPrintChkBx"_s));
    QCOMPARE(panel.selectedPreset(), 4);
    // The printer has no half cut: that is no fault of the user's.
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_requests::requestsSurviveTheTurnOfTabs()
{
    AttachedDialog dialog(u"tape"_s, {u"KvHalfCut=ON KvChainPrint=ON"_s});
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().click(u"mHalfCutChkBx"_s));
    QVERIFY(dialog.user().showTab(kSummaryTab));
    QVERIFY(dialog.user().showTab(kPanelTab));
    QVERIFY(!dialog.panel().isTicked(u"mHalfCutChkBx"_s));
    QVERIFY(dialog.panel().isTicked(u"mChainPrintChkBx"_s));
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QVERIFY(choices.contains(u"KvHalfCut=OFF"));
    QVERIFY(choices.contains(u"KvChainPrint=ON"));
}

void tst_requests::choiceThatCannotBeChosenIsReported_data()
{
    const TestTable<QString, QString, QString> table("printer", "request", "problem");
    const QString problem = u"%1 cannot be chosen on the paper %2 with the other "
                            "settings; it stays OFF"_s;
    table.add("half cut on flag paper", u"tape"_s, u"KvHalfCut=ON media=FL24x60"_s,
              problem.arg(u"KvHalfCut=ON"_s, u"FL24x60"_s));
    table.add("chain printing on flag paper", u"all"_s, u"KvChainPrint=ON media=FL21x45"_s,
              problem.arg(u"KvChainPrint=ON"_s, u"FL21x45"_s));
    table.add("removing blank space of die-cut paper", u"all"_s,
              u"KvRemoveBlkSpace=ON media=DC24x24"_s,
              problem.arg(u"KvRemoveBlkSpace=ON"_s, u"DC24x24"_s));
    table.add("cut mark on tape", u"all"_s, u"KvCutMark=ON KvMirror=ON"_s, QString());
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
