// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "PropertiesDialog.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"
#include "plugin/PDEPanel.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollArea>
#include <QTest>

namespace {
const QStringList tabsOfQt = {u"Copies"_s, u"Options"_s};
const QStringList allTabs = tabsOfQt + QStringList{kPanelTab, kSummaryTab};

/// The panels' own lines, "TITLE: VALUE" in their order.
QStringList linesOfPanels(const PanelHost &host)
{
    QStringList lines;
    for (PDEPanel *panel : host.panels()) {
        const QVariantMap info = panel->summaryInfo().value_or(QVariantMap());
        const QStringList titles = info.value(kSummaryDisplayOrder).toStringList();
        for (const QString &title : titles) {
            lines.append(u"%1: %2"_s.arg(title, info.value(title).toString()));
        }
    }
    return lines;
}

QStringList summaryOf(AttachedDialog &dialog)
{
    QTest::qWait(0);
    return dialog.panel().summary();
}
} // namespace

class tst_attachment : public PrintingTest
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
};

void tst_attachment::initTestCase()
{
    PrintingTest::initTestCase();
    QFile plain(PrintingSite::ppdPath(u"plain"_s));
    QVERIFY(plain.open(QIODevice::ReadOnly));
    const QByteArray mirror = "*OpenUI *KvMirror/Mirror Printing: PickOne\n"
                              "*OrderDependency: 40 AnySetup *KvMirror\n"
                              "*DefaultKvMirror: OFF\n"
                              "*KvMirror OFF/Off: \"\"\n"
                              "*KvMirror ON/On: \"\"\n"
                              "*CloseUI: *KvMirror\n";
    const QByteArray text = plain.readAll();
    QVERIFY(addPrinter(u"mixed"_s, mSite.file(u"mixed.ppd"_s, text + mirror)));
}

void tst_attachment::tabsOfThePrinter_data()
{
    const TestTable<QString, QStringList> table("printer", "tabs");
    for (const QString &printer : PrintingSite::printers()) {
        table.add(qPrintable(printer), printer, (printer == u"plain" ? tabsOfQt : allTabs));
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
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.boxes().contains(u"mSpecialTapeChkBx"));

    QVERIFY(dialog.user().pickPrinter(u"label"_s));
    QCOMPARE(dialog.tabs(), allTabs);
    // The panel's tab stays the one that is seen.
    QCOMPARE(panel.boxes(),
             QStringList({u"mCutAndEndChkBx"_s, u"mCutEveryChkBx"_s, u"mMirrorPrintChkBx"_s}));
    QCOMPARE(panel.presets(), QList<int>({1, 2, 3, 4}));

    QVERIFY(dialog.user().pickPrinter(u"plain"_s));
    QCOMPARE(dialog.tabs(), tabsOfQt);
    QVERIFY(dialog.attachment().host()->panels().empty());

    QVERIFY(dialog.user().pickPrinter(u"mark"_s));
    QCOMPARE(dialog.tabs(), allTabs);
    QVERIFY(panel.openTab());
    QVERIFY(panel.boxes().contains(u"mCutMarkChkBx"));
    QCOMPARE(dialog.problems(), QStringList());
}

void tst_attachment::choicesStayWithTheirPrinter()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.click(u"mMirrorPrintChkBx"_s));
    QVERIFY(panel.click(u"mHalfCutChkBx"_s));
    QVERIFY(dialog.user().pickPrinter(u"label"_s));
    QVERIFY(panel.openTab());
    QVERIFY(!panel.isTicked(u"mMirrorPrintChkBx"_s));
    QVERIFY(panel.click(u"mCutAndEndChkBx"_s));
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.choices(job), QStringList({u"KvAutoTapeCut=ON"_s, u"KvCutAtEnd=ON"_s,
                                              u"KvCutLabel=1"_s, u"KvMirror=OFF"_s}));
    QVERIFY(mSite.job(job).value(u"job-printer-uri"_s).endsWith(u"/label"));
}

void tst_attachment::plainPrinterStillPrints()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPrinter(u"plain"_s));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), QStringList());
    QVERIFY(mSite.isPrinted(job));
}

void tst_attachment::panelIsSeenWhole_data()
{
    const TestTable<QString> table("printer");
    for (const char *printer : {"follow", "mark", "label", "tape", "all"}) {
        table.add(printer, QString::fromLatin1(printer));
    }
}

void tst_attachment::panelIsSeenWhole()
{
    QFETCH(const QString, printer);
    AttachedDialog dialog(printer);
    QVERIFY(dialog.openTab());
    const auto *tab = qobject_cast<QScrollArea *>(dialog.user().widget(u"panelTab"_s));
    QVERIFY(tab && tab->widget());
    QVERIFY(QTest::qWaitFor([&] { return tab->viewport()->width() >= tab->widget()->width(); }));
    QVERIFY(QTest::qWaitFor([&] { return tab->viewport()->height() >= tab->widget()->height(); }));
}

void tst_attachment::shrinkTubeTurnsAutoCutOff()
{
    AttachedDialog dialog(u"follow"_s);
    QVERIFY(dialog.openTab());
    PanelHost &host = *dialog.attachment().host();
    QVERIFY(dialog.panel().isTicked(u"mCutEveryChkBx"_s));
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), u"ON"_s);

    QVERIFY(dialog.user().pickPaper(u"HS12x100"_s));
    QVERIFY(!dialog.panel().isTicked(u"mCutEveryChkBx"_s));
    QVERIFY(!dialog.panel().isEnabled(u"mCutEveryTxBx"_s));
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), u"OFF"_s);

    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvAutoTapeCut=OFF"));
    QCOMPARE(mSite.job(job).value(u"media"_s), u"HS12x100"_s);
}

void tst_attachment::shrinkTubeUnmarksASeparateAutoCut()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    const PanelHost &host = *dialog.attachment().host();
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), u"ON"_s);
    QVERIFY(dialog.user().pickPaper(u"HS6x100"_s));
    QCOMPARE(host.paper().ppdPaperName(), u"HS6x100"_s);
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), u"OFF"_s);
}

void tst_attachment::cancelledPaperChangesNothing()
{
    AttachedDialog dialog(u"follow"_s);
    QVERIFY(dialog.openTab());
    const PanelHost &host = *dialog.attachment().host();
    QVERIFY(dialog.user().pickPaper(u"HS12x100"_s, false));
    QCOMPARE(host.paper().ppdPaperName(), u"T12x100"_s);
    QVERIFY(dialog.panel().isTicked(u"mCutEveryChkBx"_s));
    QCOMPARE(host.ppd().markedChoice(u"KvAutoTapeCut"_s), u"ON"_s);
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(u"media"_s), u"T12x100"_s);
    QVERIFY(mSite.choices(job).contains(u"KvAutoTapeCut=ON"));
}

void tst_attachment::flagPaperForbidsHalfCut()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel = dialog.panel();
    const QStringList forbidden = {u"mHalfCutChkBx"_s, u"mSpecialTapeChkBx"_s,
                                   u"mChainPrintChkBx"_s, u"mRemoveBlkSpaceChkBx"_s};
    QVERIFY(dialog.user().pickPaper(u"FL24x60"_s));
    for (const QString &box : forbidden) {
        QVERIFY2(!panel.isEnabled(box), qPrintable(box));
        QVERIFY2(!panel.click(box), qPrintable(box));
    }
    QVERIFY(panel.isEnabled(u"mAutoCutChkBx"_s));
    QVERIFY(panel.isEnabled(u"mMirrorPrintChkBx"_s));
    QVERIFY(!panel.pickPreset(12));
    QVERIFY(panel.pickPreset(5));
    QVERIFY(!panel.isTicked(u"mAutoCutChkBx"_s));

    QVERIFY(dialog.user().pickPaper(u"T9x100"_s));
    for (const QString &box : forbidden) {
        QVERIFY2(panel.isEnabled(box), qPrintable(box));
    }
    QVERIFY(panel.pickPreset(12));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvHalfCut=ON"));
    QCOMPARE(mSite.job(job).value(u"media"_s), u"T9x100"_s);
}

void tst_attachment::dieCutPaperForbidsRemovingBlankSpace()
{
    AttachedDialog dialog(u"all"_s);
    QVERIFY(dialog.openTab());
    for (const char *paper : {"DC24x24", "AV15x50", "C_29"}) {
        QVERIFY(dialog.user().pickPaper(QLatin1String(paper)));
        QVERIFY2(!dialog.panel().isEnabled(u"mRemoveBlkSpaceChkBx"_s), paper);
        QVERIFY2(dialog.panel().isEnabled(u"mHalfCutChkBx"_s), paper);
    }
    QVERIFY(dialog.user().pickPaper(u"T6x100"_s));
    QVERIFY(dialog.panel().isEnabled(u"mRemoveBlkSpaceChkBx"_s));
}

void tst_attachment::paperReachesTheJob()
{
    AttachedDialog dialog(u"label"_s);
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().pickPaper(u"DC17x87"_s));
    QCOMPARE(dialog.attachment().host()->paper().ppdPaperName(), u"DC17x87"_s);
    const int job = dialog.print(mSite.scheduler());
    QCOMPARE(mSite.job(job).value(u"media"_s), u"DC17x87"_s);
}

void tst_attachment::summaryListsEveryLine()
{
    AttachedDialog dialog(u"all"_s);
    QVERIFY(dialog.openTab());
    QCOMPARE(summaryOf(dialog),
             QStringList({u"Cut Every: No"_s, u"Cut at End: No"_s, u"Half Cut: No"_s,
                          u"Special Tape: No"_s, u"Chain Printing: No"_s, u"Mirror Printing: No"_s,
                          u"Remove Blank Space: No"_s, u"Cut Mark: No"_s}));
    QCOMPARE(summaryOf(dialog), linesOfPanels(*dialog.attachment().host()));
}

void tst_attachment::summaryFollowsAClick()
{
    AttachedDialog dialog(u"follow"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QCOMPARE(summaryOf(dialog), QStringList({u"Cut Every: 1 labels"_s, u"Half Cut: No"_s,
                                             u"Chain Printing: No"_s, u"Mirror Printing: No"_s}));
    QVERIFY(panel.click(u"mHalfCutChkBx"_s));
    QVERIFY(panel.typeCount(u"12"_s));
    QCOMPARE(summaryOf(dialog), QStringList({u"Cut Every: 12 labels"_s, u"Half Cut: Yes"_s,
                                             u"Chain Printing: No"_s, u"Mirror Printing: No"_s}));
    QVERIFY(panel.click(u"mCutEveryChkBx"_s));
    QVERIFY(panel.click(u"mMirrorPrintChkBx"_s));
    QCOMPARE(summaryOf(dialog), QStringList({u"Cut Every: No"_s, u"Half Cut: Yes"_s,
                                             u"Chain Printing: No"_s, u"Mirror Printing: Yes"_s}));
    QCOMPARE(summaryOf(dialog), linesOfPanels(*dialog.attachment().host()));
}

void tst_attachment::summaryFollowsAPreset()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().pickPreset(8));
    QVERIFY(dialog.user().showTab(kSummaryTab));
    QCOMPARE(summaryOf(dialog).mid(0, 4),
             QStringList({u"Auto Cut: No"_s, u"Half Cut: Yes"_s, u"Special Tape: No"_s,
                          u"Chain Printing: Yes"_s}));
}

void tst_attachment::choicesStayWhenTabsAreTurned()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.pickPreset(11));
    QVERIFY(panel.click(u"mMirrorPrintChkBx"_s));
    for (int turn = 0; turn < 2; ++turn) {
        QVERIFY(dialog.user().showTab(kSummaryTab));
        QVERIFY(panel.openTab());
        QVERIFY(panel.isTicked(u"mAutoCutChkBx"_s));
        QVERIFY(panel.isTicked(u"mHalfCutChkBx"_s));
        QVERIFY(panel.isTicked(u"mMirrorPrintChkBx"_s));
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
    AttachedDialog dialog(u"follow"_s);
    QVERIFY(dialog.openTab());
    QCOMPARE(summaryOf(dialog).value(0), u"Cut Every: 1 labels"_s);
    QVERIFY(dialog.user().pickPaper(u"HS18x100"_s));
    QCOMPARE(summaryOf(dialog).value(0), u"Cut Every: No"_s);
    QCOMPARE(summaryOf(dialog), linesOfPanels(*dialog.attachment().host()));
}

void tst_attachment::summaryWithoutASeenTab()
{
    AttachedDialog dialog(u"label"_s, {u"KvCutAtEnd=ON"_s});
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
    AttachedDialog dialog(u"mixed"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().click(u"mMirrorPrintChkBx"_s));
    QVERIFY(PropertiesDialog::with(dialog.user(), true, [](const QDialog &properties) {
        QVERIFY(PropertiesDialog::pickChoice(properties, u"Dark"_s));
    }));
    QVERIFY(dialog.panel().isTicked(u"mMirrorPrintChkBx"_s));
    QCOMPARE(mSite.choices(dialog.print(mSite.scheduler())),
             QStringList({u"KvDensity=Dark"_s, u"KvMirror=ON"_s}));
}

void tst_attachment::dialogAcceptedTwice()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    PanelUser panel(dialog.user());
    QVERIFY(panel.click(u"mHalfCutChkBx"_s));
    const int first = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(first).contains(u"KvHalfCut=ON"));

    QVERIFY(dialog.openTab());
    QVERIFY(panel.isTicked(u"mHalfCutChkBx"_s));
    QVERIFY(panel.click(u"mHalfCutChkBx"_s));
    QVERIFY(panel.click(u"mChainPrintChkBx"_s));
    const int second = dialog.print(mSite.scheduler());
    QVERIFY(second > first);
    QCOMPARE(mSite.choices(second),
             QStringList({u"KvAutoTapeCut=ON"_s, u"KvChainPrint=ON"_s, u"KvHalfCut=OFF"_s,
                          u"KvMirror=OFF"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvSpecialTape=OFF"_s}));
    QCOMPARE(dialog.tabs(), allTabs);
}

void tst_attachment::dialogCancelledThenAccepted()
{
    AttachedDialog dialog(u"tape"_s);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().click(u"mHalfCutChkBx"_s));
    QVERIFY(dialog.user().cancel());
    QVERIFY(!dialog.attachment().jobOptions().contains(u"KvHalfCut"_s));
    QVERIFY(dialog.user().open());
    QVERIFY(mSite.choices(dialog.print(mSite.scheduler())).contains(u"KvAutoTapeCut=ON"));
}

void tst_attachment::dialogDestroyedWhileOpen()
{
    AttachedDialog staying(u"follow"_s);
    QVERIFY(staying.openTab());
    {
        AttachedDialog leaving(u"all"_s);
        QVERIFY(leaving.openTab());
        QVERIFY(leaving.panel().click(u"mCutMarkChkBx"_s));
        leaving.destroyDialog();
        QTest::qWait(0);
        // The panel of the destroyed dialog must not be told.
        QVERIFY(staying.user().pickPaper(u"HS12x100"_s));
    }
    QVERIFY(!staying.panel().isTicked(u"mCutEveryChkBx"_s));
    QVERIFY(staying.print(mSite.scheduler()) > 0);
}

void tst_attachment::twoDialogsAtOnce()
{
    AttachedDialog first(u"follow"_s);
    AttachedDialog second(u"follow"_s);
    QVERIFY(first.openTab());
    QVERIFY(second.openTab());
    PanelUser firstPanel(first.user());
    PanelUser secondPanel(second.user());
    QVERIFY(firstPanel.click(u"mHalfCutChkBx"_s));
    QVERIFY(secondPanel.click(u"mChainPrintChkBx"_s));
    QVERIFY(!secondPanel.isTicked(u"mHalfCutChkBx"_s));
    QVERIFY(!firstPanel.isTicked(u"mChainPrintChkBx"_s));

    QVERIFY(second.user().pickPaper(u"HS12x100"_s));
    QVERIFY(!secondPanel.isTicked(u"mCutEveryChkBx"_s));
    QVERIFY(firstPanel.isTicked(u"mCutEveryChkBx"_s));
    QCOMPARE(first.attachment().host()->paper().ppdPaperName(), u"T12x100"_s);

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
