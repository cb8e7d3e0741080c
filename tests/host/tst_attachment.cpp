// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingSite.h"
#include "PropertiesDialog.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"
#include "plugin/PDEPanel.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

namespace {
const QStringList tabsOfQt = {QStringLiteral("Copies"), QStringLiteral("Options")};
const QStringList allTabs = tabsOfQt + QStringList{kPanelTab, kSummaryTab};

/// The panels' own lines, "TITLE: VALUE" in their order.
QStringList linesOfPanels(const PanelHost &host)
{
    QStringList lines;
    for (PDEPanel *panel : host.panels()) {
        const QVariantMap info = panel->summaryInfo().value_or(QVariantMap());
        const QStringList titles = info.value(kSummaryDisplayOrder).toStringList();
        for (const QString &title : titles) {
            lines.append(QStringLiteral("%1: %2").arg(title, info.value(title).toString()));
        }
    }
    return lines;
}

QStringList summaryOf(AttachedDialog &dialog)
{
    QTest::qWait(0);
    return PanelUser(dialog.user()).summary();
}
} // namespace

class tst_attachment : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void tabsOfThePrinter_data();
    void tabsOfThePrinter();
    void tabsFollowThePrinter();
    void choicesStayWithTheirPrinter();
    void plainPrinterStillPrints();
    void panelIsSeenWhole_data();
    void panelIsSeenWhole();

    void choicesStayWhenTabsAreTurned();

    void shrinkTubeTurnsAutoCutOff();
    void shrinkTubeUnmarksASeparateAutoCut();
    void cancelledPaperChangesNothing();
    void flagPaperForbidsHalfCut();
    void otherPaperAllowsHalfCutAgain();
    void dieCutPaperForbidsRemovingBlankSpace();
    void paperReachesTheJob();

    void summaryListsEveryLine();
    void summaryFollowsAClick();
    void summaryFollowsAPreset();
    void summaryFollowsThePaper();
    void summaryWithoutASeenTab();

    void propertiesDoNotListThePanelsOptions();
    void propertiesStillListOtherOptions();
    void choiceOfThePropertiesReachesTheJob();

    void dialogAcceptedTwice();
    void dialogCancelledThenAccepted();
    void dialogDestroyedWhileOpen();
    void twoDialogsAtOnce();

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_attachment::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
    QFile plain(PrintingSite::ppdPath(QStringLiteral("plain")));
    QVERIFY(plain.open(QIODevice::ReadOnly));
    const QByteArray mirror = "*OpenUI *KvMirror/Mirror Printing: PickOne\n"
                              "*OrderDependency: 40 AnySetup *KvMirror\n"
                              "*DefaultKvMirror: OFF\n"
                              "*KvMirror OFF/Off: \"\"\n"
                              "*KvMirror ON/On: \"\"\n"
                              "*CloseUI: *KvMirror\n";
    const QByteArray text = plain.readAll();
    QString error;
    QVERIFY2(mSite.scheduler().addPrinter(QStringLiteral("mixed"),
                                          mSite.file(QStringLiteral("mixed.ppd"), text + mirror),
                                          &error),
             qPrintable(error));
}

void tst_attachment::tabsOfThePrinter_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QStringList>("tabs");
    for (const QString &printer : PrintingSite::printers()) {
        QTest::newRow(qPrintable(printer)) << printer << (printer == u"plain" ? tabsOfQt : allTabs);
    }
}

void tst_attachment::tabsOfThePrinter()
{
    QFETCH(const QString, printer);
    QFETCH(const QStringList, tabs);
    AttachedDialog dialog(printer);
    QCOMPARE(dialog.tabs(), tabs);
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_attachment::tabsFollowThePrinter()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.boxes().contains(u"mSpecialTapeChkBx"));

    QVERIFY(dialog.user().pickPrinter(QStringLiteral("label")));
    QCOMPARE(dialog.tabs(), allTabs);
    // The panel's tab stays the one that is seen.
    QCOMPARE(panel.boxes(),
             QStringList({u"mCutAndEndChkBx"_s, u"mCutEveryChkBx"_s, u"mMirrorPrintChkBx"_s}));
    QCOMPARE(panel.presets(), QList<int>({1, 2, 3, 4}));

    QVERIFY(dialog.user().pickPrinter(QStringLiteral("plain")));
    QCOMPARE(dialog.tabs(), tabsOfQt);
    QVERIFY(dialog.attachment().host()->panels().empty());

    QVERIFY(dialog.user().pickPrinter(QStringLiteral("mark")));
    QCOMPARE(dialog.tabs(), allTabs);
    QVERIFY(panel.openTab());
    QVERIFY(panel.boxes().contains(u"mCutMarkChkBx"));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_attachment::choicesStayWithTheirPrinter()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.click(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(panel.click(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("label")));
    QVERIFY(panel.openTab());
    QVERIFY(!panel.isTicked(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(panel.click(QStringLiteral("mCutAndEndChkBx")));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), QStringList({u"KvAutoTapeCut=ON"_s, u"KvCutAtEnd=ON"_s,
                                              u"KvCutLabel=1"_s, u"KvMirror=OFF"_s}));
    QVERIFY(mSite.job(job).value(u"job-printer-uri"_s).endsWith(u"/label"));
}

void tst_attachment::plainPrinterStillPrints()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(QStringLiteral("plain")));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), QStringList());
    QVERIFY(mSite.scheduler().waitForJob(job, 30'000));
}

void tst_attachment::panelIsSeenWhole_data()
{
    QTest::addColumn<QString>("printer");
    for (const char *printer : {"follow", "mark", "label", "tape", "all"}) {
        QTest::newRow(printer) << QString::fromLatin1(printer);
    }
}

void tst_attachment::panelIsSeenWhole()
{
    QFETCH(const QString, printer);
    AttachedDialog dialog(printer);
    QVERIFY(dialog.openTab());
    const auto *tab = qobject_cast<QScrollArea *>(dialog.user().widget(QStringLiteral("panelTab")));
    QVERIFY(tab && tab->widget());
    QVERIFY(QTest::qWaitFor([&] { return tab->viewport()->width() >= tab->widget()->width(); }));
    QVERIFY(QTest::qWaitFor([&] { return tab->viewport()->height() >= tab->widget()->height(); }));
}

void tst_attachment::shrinkTubeTurnsAutoCutOff()
{
    AttachedDialog dialog(QStringLiteral("follow"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    PanelHost &host = *dialog.attachment().host();
    QVERIFY(panel.isTicked(QStringLiteral("mCutEveryChkBx")));
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), QStringLiteral("ON"));

    QVERIFY(dialog.user().pickPaper(QStringLiteral("HS12x100")));
    QVERIFY(!panel.isTicked(QStringLiteral("mCutEveryChkBx")));
    QVERIFY(!panel.isEnabled(QStringLiteral("mCutEveryTxBx")));
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), QStringLiteral("OFF"));

    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvAutoTapeCut=OFF"));
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("HS12x100"));
}

void tst_attachment::shrinkTubeUnmarksASeparateAutoCut()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    const PanelHost &host = *dialog.attachment().host();
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), QStringLiteral("ON"));
    QVERIFY(dialog.user().pickPaper(QStringLiteral("HS6x100")));
    QCOMPARE(host.paper().ppdPaperName(), QStringLiteral("HS6x100"));
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), QStringLiteral("OFF"));
}

void tst_attachment::cancelledPaperChangesNothing()
{
    AttachedDialog dialog(QStringLiteral("follow"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    const PanelHost &host = *dialog.attachment().host();
    QVERIFY(dialog.user().pickPaper(QStringLiteral("HS12x100"), false));
    QCOMPARE(host.paper().ppdPaperName(), QStringLiteral("T12x100"));
    QVERIFY(panel.isTicked(QStringLiteral("mCutEveryChkBx")));
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), QStringLiteral("ON"));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("T12x100"));
    QVERIFY(mSite.choices(job).contains(u"KvAutoTapeCut=ON"));
}

void tst_attachment::flagPaperForbidsHalfCut()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    const QStringList forbidden = {u"mHalfCutChkBx"_s, u"mSpecialTapeChkBx"_s,
                                   u"mChainPrintChkBx"_s, u"mRemoveBlkSpaceChkBx"_s};
    for (const QString &box : forbidden) {
        QVERIFY2(panel.isEnabled(box), qPrintable(box));
    }
    QVERIFY(dialog.user().pickPaper(QStringLiteral("FL24x60")));
    for (const QString &box : forbidden) {
        QVERIFY2(!panel.isEnabled(box), qPrintable(box));
        QVERIFY2(!panel.click(box), qPrintable(box));
    }
    QVERIFY(panel.isEnabled(QStringLiteral("mAutoCutChkBx")));
    QVERIFY(panel.isEnabled(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(!panel.pickPreset(12));
    QVERIFY(panel.pickPreset(5));
    QVERIFY(!panel.isTicked(QStringLiteral("mAutoCutChkBx")));
}

void tst_attachment::otherPaperAllowsHalfCutAgain()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(dialog.user().pickPaper(QStringLiteral("FL24x60")));
    QVERIFY(dialog.user().pickPaper(QStringLiteral("T9x100")));
    for (const char *box :
         {"mHalfCutChkBx", "mSpecialTapeChkBx", "mChainPrintChkBx", "mRemoveBlkSpaceChkBx"}) {
        QVERIFY2(panel.isEnabled(QLatin1String(box)), box);
    }
    QVERIFY(panel.pickPreset(12));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvHalfCut=ON"));
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("T9x100"));
}

void tst_attachment::dieCutPaperForbidsRemovingBlankSpace()
{
    AttachedDialog dialog(QStringLiteral("all"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    for (const char *paper : {"DC24x24", "AV15x50", "C_29"}) {
        QVERIFY(dialog.user().pickPaper(QLatin1String(paper)));
        QVERIFY2(!panel.isEnabled(QStringLiteral("mRemoveBlkSpaceChkBx")), paper);
        QVERIFY2(panel.isEnabled(QStringLiteral("mHalfCutChkBx")), paper);
    }
    QVERIFY(dialog.user().pickPaper(QStringLiteral("T6x100")));
    QVERIFY(panel.isEnabled(QStringLiteral("mRemoveBlkSpaceChkBx")));
}

void tst_attachment::paperReachesTheJob()
{
    AttachedDialog dialog(QStringLiteral("label"));
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPaper(QStringLiteral("DC17x87")));
    QCOMPARE(dialog.attachment().host()->paper().ppdPaperName(), QStringLiteral("DC17x87"));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(QStringLiteral("media")), QStringLiteral("DC17x87"));
}

void tst_attachment::summaryListsEveryLine()
{
    AttachedDialog dialog(QStringLiteral("all"));
    QVERIFY(dialog.openTab());
    QCOMPARE(summaryOf(dialog),
             QStringList({u"Cut Every: No"_s, u"Cut at End: No"_s, u"Half Cut: No"_s,
                          u"Special Tape: No"_s, u"Chain Printing: No"_s, u"Mirror Printing: No"_s,
                          u"Remove Blank Space: No"_s, u"Cut Mark: No"_s}));
    QCOMPARE(summaryOf(dialog), linesOfPanels(*dialog.attachment().host()));
}

void tst_attachment::summaryFollowsAClick()
{
    AttachedDialog dialog(QStringLiteral("follow"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QCOMPARE(summaryOf(dialog), QStringList({u"Cut Every: 1 labels"_s, u"Half Cut: No"_s,
                                             u"Chain Printing: No"_s, u"Mirror Printing: No"_s}));
    QVERIFY(panel.click(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(panel.typeCount(QStringLiteral("12")));
    QCOMPARE(summaryOf(dialog), QStringList({u"Cut Every: 12 labels"_s, u"Half Cut: Yes"_s,
                                             u"Chain Printing: No"_s, u"Mirror Printing: No"_s}));
    QVERIFY(panel.click(QStringLiteral("mCutEveryChkBx")));
    QVERIFY(panel.click(QStringLiteral("mMirrorPrintChkBx")));
    QCOMPARE(summaryOf(dialog), QStringList({u"Cut Every: No"_s, u"Half Cut: Yes"_s,
                                             u"Chain Printing: No"_s, u"Mirror Printing: Yes"_s}));
    QCOMPARE(summaryOf(dialog), linesOfPanels(*dialog.attachment().host()));
}

void tst_attachment::summaryFollowsAPreset()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.pickPreset(8));
    QVERIFY(dialog.user().showTab(kSummaryTab));
    QCOMPARE(summaryOf(dialog).mid(0, 4),
             QStringList({u"Auto Cut: No"_s, u"Half Cut: Yes"_s, u"Special Tape: No"_s,
                          u"Chain Printing: Yes"_s}));
}

void tst_attachment::choicesStayWhenTabsAreTurned()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.pickPreset(11));
    QVERIFY(panel.click(QStringLiteral("mMirrorPrintChkBx")));
    for (int turn = 0; turn < 2; ++turn) {
        QVERIFY(dialog.user().showTab(kSummaryTab));
        QVERIFY(panel.openTab());
        QVERIFY(panel.isTicked(QStringLiteral("mAutoCutChkBx")));
        QVERIFY(panel.isTicked(QStringLiteral("mHalfCutChkBx")));
        QVERIFY(panel.isTicked(QStringLiteral("mMirrorPrintChkBx")));
        QCOMPARE(panel.selectedPreset(), 11);
    }
    const QStringList choices = mSite.choices(dialog.print(mSite.scheduler()));
    QVERIFY(choices.contains(u"KvAutoTapeCut=ON"_s));
    QVERIFY(choices.contains(u"KvHalfCut=ON"_s));
    QVERIFY(choices.contains(u"KvMirror=ON"_s));
    QVERIFY(choices.contains(u"KvChainPrint=OFF"_s));
}

void tst_attachment::summaryFollowsThePaper()
{
    AttachedDialog dialog(QStringLiteral("follow"));
    QVERIFY(dialog.openTab());
    QCOMPARE(summaryOf(dialog).value(0), QStringLiteral("Cut Every: 1 labels"));
    QVERIFY(dialog.user().pickPaper(QStringLiteral("HS18x100")));
    QCOMPARE(summaryOf(dialog).value(0), QStringLiteral("Cut Every: No"));
    QCOMPARE(summaryOf(dialog), linesOfPanels(*dialog.attachment().host()));
}

void tst_attachment::summaryWithoutASeenTab()
{
    AttachedDialog dialog(QStringLiteral("label"), {QStringLiteral("KvCutAtEnd=ON")});
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    QVERIFY(dialog.user().showTab(kSummaryTab));
    QCOMPARE(summaryOf(dialog), linesOfPanels(*dialog.attachment().host()));
    QVERIFY(summaryOf(dialog).contains(u"Cut at End: Yes"));
    QCOMPARE(summaryOf(dialog).size(), 3);
}

void tst_attachment::propertiesDoNotListThePanelsOptions()
{
    for (const char *printer : {"tape", "follow", "mark", "all", "label"}) {
        AttachedDialog dialog(QString::fromLatin1(printer));
        QVERIFY(dialog.user().open());
        bool isShown = true;
        QVERIFY(PropertiesDialog::with(dialog.user(), false, [&](const QDialog &properties) {
            isShown = PropertiesDialog::hasOptions(properties);
        }));
        QVERIFY2(!isShown, printer);
    }
}

void tst_attachment::propertiesStillListOtherOptions()
{
    for (const char *printer : {"plain", "mixed"}) {
        AttachedDialog dialog(QString::fromLatin1(printer));
        QVERIFY(dialog.user().open());
        QStringList texts;
        bool isShown = false;
        QVERIFY(PropertiesDialog::with(dialog.user(), false, [&](const QDialog &properties) {
            texts = PropertiesDialog::options(properties);
            isShown = PropertiesDialog::hasOptions(properties);
        }));
        QVERIFY2(isShown, printer);
        QVERIFY2(texts.contains(u"Density"), qPrintable(texts.join(u'|')));
        QVERIFY2(!texts.contains(u"Mirror Printing"), qPrintable(texts.join(u'|')));
    }
}

void tst_attachment::choiceOfThePropertiesReachesTheJob()
{
    AttachedDialog dialog(QStringLiteral("mixed"));
    QVERIFY(dialog.openTab());
    QVERIFY(PanelUser(dialog.user()).click(QStringLiteral("mMirrorPrintChkBx")));
    QVERIFY(PropertiesDialog::with(dialog.user(), true, [](const QDialog &properties) {
        QVERIFY(PropertiesDialog::pickChoice(properties, QStringLiteral("Dark")));
    }));
    QVERIFY(PanelUser(dialog.user()).isTicked(QStringLiteral("mMirrorPrintChkBx")));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.choices(job), QStringList({u"KvDensity=Dark"_s, u"KvMirror=ON"_s}));
}

void tst_attachment::dialogAcceptedTwice()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.click(QStringLiteral("mHalfCutChkBx")));
    const int first = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(first).contains(u"KvHalfCut=ON"));

    QVERIFY(dialog.openTab());
    QVERIFY(panel.isTicked(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(panel.click(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(panel.click(QStringLiteral("mChainPrintChkBx")));
    const int second = dialog.print(mSite.scheduler());
    QVERIFY(second > first);
    QCOMPARE(mSite.choices(second),
             QStringList({u"KvAutoTapeCut=ON"_s, u"KvChainPrint=ON"_s, u"KvHalfCut=OFF"_s,
                          u"KvMirror=OFF"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvSpecialTape=OFF"_s}));
    QCOMPARE(dialog.tabs(), allTabs);
}

void tst_attachment::dialogCancelledThenAccepted()
{
    AttachedDialog dialog(QStringLiteral("tape"));
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.click(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(dialog.user().cancel());
    QVERIFY(!dialog.attachment().jobOptions().contains(QStringLiteral("KvHalfCut")));
    QVERIFY(dialog.user().open());
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvAutoTapeCut=ON"));
}

void tst_attachment::dialogDestroyedWhileOpen()
{
    AttachedDialog staying(QStringLiteral("follow"));
    QVERIFY(staying.openTab());
    {
        AttachedDialog leaving(QStringLiteral("all"));
        QVERIFY(leaving.openTab());
        QVERIFY(PanelUser(leaving.user()).click(QStringLiteral("mCutMarkChkBx")));
        leaving.destroyDialog();
        QTest::qWait(0);
        // The panel of the destroyed dialog must not be told.
        QVERIFY(staying.user().pickPaper(QStringLiteral("HS12x100")));
    }
    QVERIFY(!PanelUser(staying.user()).isTicked(QStringLiteral("mCutEveryChkBx")));
    QVERIFY(staying.print(mSite.scheduler()) > 0);
}

void tst_attachment::twoDialogsAtOnce()
{
    AttachedDialog first(QStringLiteral("follow"));
    AttachedDialog second(QStringLiteral("follow"));
    QVERIFY(first.openTab());
    QVERIFY(second.openTab());
    PanelUser firstPanel(first.user());
    PanelUser secondPanel(second.user());
    QVERIFY(firstPanel.click(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(secondPanel.click(QStringLiteral("mChainPrintChkBx")));
    QVERIFY(!secondPanel.isTicked(QStringLiteral("mHalfCutChkBx")));
    QVERIFY(!firstPanel.isTicked(QStringLiteral("mChainPrintChkBx")));

    QVERIFY(second.user().pickPaper(QStringLiteral("HS12x100")));
    QVERIFY(!secondPanel.isTicked(QStringLiteral("mCutEveryChkBx")));
    QVERIFY(firstPanel.isTicked(QStringLiteral("mCutEveryChkBx")));
    QCOMPARE(first.attachment().host()->paper().ppdPaperName(), QStringLiteral("T12x100"));

    const int firstJob = first.print(mSite.scheduler());
    const int secondJob = second.print(mSite.scheduler());
    QCOMPARE(mSite.choices(firstJob),
             QStringList({u"KvAutoTapeCut=ON"_s, u"KvChainPrint=OFF"_s, u"KvCutLabel=1"_s,
                          u"KvHalfCut=ON"_s, u"KvMirror=OFF"_s}));
    QCOMPARE(mSite.choices(secondJob),
             QStringList({u"KvAutoTapeCut=OFF"_s, u"KvChainPrint=ON"_s, u"KvCutLabel=1"_s,
                          u"KvHalfCut=OFF"_s, u"KvMirror=OFF"_s}));
}

KV_TEST(tst_attachment)
#include "tst_attachment.moc"
