// SPDX-License-Identifier: Apache-2.0
#include "CommandRun.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "SampleChoices.h"

#include <QTest>

namespace {
struct Row
{
    const char *printer;
    const char *control;
    const char *changes;
};

constexpr Row clicks[] = {
    {"tape", "mAutoCutChkBx", "KvAutoTapeCut=OFF"},
    {"tape", "mHalfCutChkBx", "KvHalfCut=ON"},
    {"tape", "mChainPrintChkBx", "KvChainPrint=ON"},
    {"tape", "mSpecialTapeChkBx", "KvSpecialTape=ON KvAutoTapeCut=OFF"},
    {"tape", "mMirrorPrintChkBx", "KvMirror=ON"},
    {"tape", "mRemoveBlkSpaceChkBx", "KvRemoveBlkSpace=ON"},
    {"follow", "mCutEveryChkBx", "KvAutoTapeCut=OFF"},
    {"follow", "mHalfCutChkBx", "KvHalfCut=ON"},
    {"follow", "mChainPrintChkBx", "KvChainPrint=ON"},
    {"follow", "mMirrorPrintChkBx", "KvMirror=ON"},
    {"mark", "mCutMarkChkBx", "KvCutMark=ON"},
    {"mark", "mAutoCutChkBx", "KvAutoTapeCut=ON"},
    {"mark", "mChainPrintChkBx", "KvChainPrint=ON"},
    {"mark", "mMirrorPrintChkBx", "KvMirror=ON"},
    // With an auto-cut box of its own the cut-every box decides nothing.
    {"all", "mCutEveryChkBx", ""},
    {"all", "mCutAndEndChkBx", "KvCutAtEnd=ON"},
    {"all", "mMirrorPrintChkBx", "KvMirror=ON"},
    {"all", "mAutoCutChkBx", "KvAutoTapeCut=ON"},
    {"all", "mHalfCutChkBx", "KvHalfCut=ON"},
    {"all", "mChainPrintChkBx", "KvChainPrint=ON"},
    {"all", "mSpecialTapeChkBx", "KvSpecialTape=ON"},
    {"all", "mRemoveBlkSpaceChkBx", "KvRemoveBlkSpace=ON"},
    {"all", "mCutMarkChkBx", "KvCutMark=ON"},
    {"label", "mCutEveryChkBx", "KvAutoTapeCut=OFF"},
    {"label", "mCutAndEndChkBx", "KvCutAtEnd=ON"},
    {"label", "mMirrorPrintChkBx", "KvMirror=ON"},
};

struct PresetRow
{
    const char *printer;
    int tag;
    const char *changes;
};

constexpr PresetRow presets[] = {
    {"tape", 5, "KvAutoTapeCut=OFF"},
    {"tape", 6, "KvAutoTapeCut=OFF KvChainPrint=ON"},
    {"tape", 7, "KvAutoTapeCut=OFF KvHalfCut=ON"},
    {"tape", 8, "KvAutoTapeCut=OFF KvHalfCut=ON KvChainPrint=ON"},
    {"tape", 9, ""},
    {"tape", 10, "KvChainPrint=ON"},
    {"tape", 11, "KvHalfCut=ON"},
    {"tape", 12, "KvHalfCut=ON KvChainPrint=ON"},
    {"tape", 13, "KvSpecialTape=ON KvAutoTapeCut=OFF"},
    {"follow", 4, ""},
    {"follow", 5, "KvAutoTapeCut=OFF"},
    {"follow", 6, "KvAutoTapeCut=OFF KvChainPrint=ON"},
    {"follow", 7, "KvAutoTapeCut=OFF KvHalfCut=ON"},
    {"follow", 8, "KvAutoTapeCut=OFF KvHalfCut=ON KvChainPrint=ON"},
    {"mark", 9, "KvAutoTapeCut=ON"},
    {"mark", 14, "KvCutMark=ON"},
    {"mark", 15, "KvCutMark=ON KvChainPrint=ON"},
    {"mark", 16, "KvChainPrint=ON"},
    {"mark", 17, ""},
    {"all", 4, "KvCutAtEnd=ON"},
    {"all", 7, "KvHalfCut=ON"},
    {"all", 9, "KvAutoTapeCut=ON"},
    {"all", 11, "KvAutoTapeCut=ON KvHalfCut=ON"},
    {"all", 13, "KvSpecialTape=ON"},
    {"all", 14, "KvCutMark=ON"},
    {"all", 15, "KvCutMark=ON KvChainPrint=ON"},
    {"all", 16, "KvChainPrint=ON"},
    {"all", 17, ""},
    {"label", 1, "KvAutoTapeCut=OFF"},
    {"label", 2, "KvAutoTapeCut=OFF KvCutAtEnd=ON"},
    {"label", 3, ""},
    {"label", 4, "KvCutAtEnd=ON"},
};
} // namespace

class tst_dialog : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void unopenedTabPrintsTheDefaults_data() { addPrinters(); }
    void unopenedTabPrintsTheDefaults();
    void openedTabPrintsTheDefaults_data() { addPrinters(); }
    void openedTabPrintsTheDefaults();
    void everyBoxAndPresetIsTested_data() { addPrinters(); }
    void everyBoxAndPresetIsTested();
    void clickedBoxReachesTheJob_data();
    void clickedBoxReachesTheJob();
    void boxClickedTwiceIsBack_data() { clickedBoxReachesTheJob_data(); }
    void boxClickedTwiceIsBack();
    void specialTapeTurnsTheOthersOff();
    void specialTapeTurnedOffBringsTheOthersBack();
    void countReachesTheJob_data();
    void countReachesTheJob();
    void countNeedsTheTickedBox();
    void countBesideASeparateAutoCut();
    void firstCountUnticksTheBoxBesideAutoCut();
    void presetReachesTheJob_data();
    void presetReachesTheJob();
    void presetTurnsMirrorPrintingOff();

private: // NOLINT(readability-redundant-access-specifiers)
    static void addPrinters();
    QStringList documents() const { return {mSite.document()}; }
};

void tst_dialog::addPrinters()
{
    QTest::addColumn<QString>("printer");
    for (const QString &printer : PrintingSite::printers()) {
        QTest::newRow(qPrintable(printer)) << printer;
    }
}

void tst_dialog::unopenedTabPrintsTheDefaults()
{
    QFETCH(const QString, printer);
    CommandRun run(printer, documents());
    QVERIFY(run.open());
    const int job = run.print();
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), SampleChoices::defaults(printer));
}

void tst_dialog::openedTabPrintsTheDefaults()
{
    QFETCH(const QString, printer);
    CommandRun run(printer, documents());
    const bool hasTab = printer != u"plain";
    QCOMPARE(run.openTab(), hasTab);
    const int job = run.print();
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), SampleChoices::seen(printer));
}

void tst_dialog::everyBoxAndPresetIsTested()
{
    QFETCH(const QString, printer);
    QStringList boxes;
    for (const Row &row : clicks) {
        if (printer == QLatin1String(row.printer)) {
            boxes.append(QLatin1String(row.control));
        }
    }
    boxes.sort();
    QList<int> tags;
    for (const PresetRow &row : presets) {
        if (printer == QLatin1String(row.printer)) {
            tags.append(row.tag);
        }
    }
    CommandRun run(printer, documents());
    QCOMPARE(run.openTab(), !boxes.isEmpty());
    QCOMPARE(run.panel().boxes(), boxes);
    QCOMPARE(run.panel().presets(), tags);
}

void tst_dialog::clickedBoxReachesTheJob_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("changes");
    for (const Row &row : clicks) {
        QTest::addRow("%s %s", row.printer, row.control)
            << QString::fromLatin1(row.printer) << QString::fromLatin1(row.control)
            << QString::fromLatin1(row.changes);
    }
}

void tst_dialog::clickedBoxReachesTheJob()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, box);
    QFETCH(const QString, changes);
    CommandRun run(printer, documents());
    QVERIFY(run.openTab());
    const bool before = run.panel().isTicked(box);
    QVERIFY(run.panel().click(box));
    QCOMPARE(run.panel().isTicked(box), !before);
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::seen(printer), changes));
}

void tst_dialog::boxClickedTwiceIsBack()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, box);
    CommandRun run(printer, documents());
    QVERIFY(run.openTab());
    QVERIFY(run.panel().click(box));
    QVERIFY(run.panel().click(box));
    QCOMPARE(mSite.choices(run.print()), SampleChoices::seen(printer));
}

void tst_dialog::specialTapeTurnsTheOthersOff()
{
    CommandRun run(u"all"_s, documents());
    QVERIFY(run.openTab());
    for (const char *box :
         {"mAutoCutChkBx", "mHalfCutChkBx", "mChainPrintChkBx", "mCutMarkChkBx", "mCutAndEndChkBx",
          "mMirrorPrintChkBx", "mRemoveBlkSpaceChkBx", "mSpecialTapeChkBx"}) {
        QVERIFY2(run.panel().click(QLatin1String(box)), box);
    }
    for (const char *box : {"mAutoCutChkBx", "mHalfCutChkBx", "mChainPrintChkBx", "mCutEveryChkBx",
                            "mCutEveryTxBx", "mCutEveryStpr"}) {
        QVERIFY2(!run.panel().isEnabled(QLatin1String(box)), box);
    }
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::defaults(u"all"_s),
                                     u"KvSpecialTape=ON KvCutAtEnd=ON "
                                     "KvMirror=ON KvRemoveBlkSpace=ON"_s));
}

void tst_dialog::specialTapeTurnedOffBringsTheOthersBack()
{
    CommandRun run(u"tape"_s, documents());
    QVERIFY(run.openTab());
    PanelUser panel(run.user());
    QVERIFY(panel.click(u"mHalfCutChkBx"_s));
    QVERIFY(panel.click(u"mSpecialTapeChkBx"_s));
    QVERIFY(!panel.click(u"mHalfCutChkBx"_s));
    QVERIFY(panel.click(u"mSpecialTapeChkBx"_s));
    QVERIFY(panel.isEnabled(u"mHalfCutChkBx"_s));
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::defaults(u"tape"_s), u"KvHalfCut=ON"_s));
}

void tst_dialog::countReachesTheJob_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("steps");
    QTest::addColumn<QString>("count");
    for (const char *printer : {"label", "follow"}) {
        const QString name = QLatin1String(printer);
        QTest::addRow("%s typed", printer) << name << u"7"_s << 0 << u"7"_s;
        QTest::addRow("%s typed two digits", printer) << name << u"42"_s << 0 << u"42"_s;
        QTest::addRow("%s typed, raised", printer) << name << u"7"_s << 2 << u"9"_s;
        QTest::addRow("%s typed, lowered", printer) << name << u"7"_s << -1 << u"6"_s;
        QTest::addRow("%s raised", printer) << name << QString() << 3 << u"4"_s;
        QTest::addRow("%s lowered below the least", printer) << name << QString() << -1 << u"1"_s;
        QTest::addRow("%s raised above the most", printer) << name << u"99"_s << 1 << u"99"_s;
        QTest::addRow("%s too much typed", printer) << name << u"150"_s << 0 << u"99"_s;
        QTest::addRow("%s nought typed", printer) << name << u"0"_s << 0 << u"1"_s;
        QTest::addRow("%s letters typed", printer) << name << u"ab"_s << 0 << u"1"_s;
    }
}

void tst_dialog::countReachesTheJob()
{
    QFETCH(const QString, printer);
    QFETCH(const QString, typed);
    QFETCH(const int, steps);
    QFETCH(const QString, count);
    CommandRun run(printer, documents());
    QVERIFY(run.openTab());
    PanelUser panel(run.user());
    QCOMPARE(panel.count(), u"1"_s);
    if (!typed.isEmpty()) {
        QVERIFY(panel.typeCount(typed));
    }
    for (int i = 0; i < std::abs(steps); ++i) {
        QVERIFY(panel.step(steps > 0));
    }
    QCOMPARE(panel.count(), count);
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::seen(printer), u"KvCutLabel="_s + count));
}

void tst_dialog::countNeedsTheTickedBox()
{
    CommandRun run(u"follow"_s, documents());
    QVERIFY(run.openTab());
    PanelUser panel(run.user());
    QVERIFY(panel.typeCount(u"5"_s));
    QVERIFY(panel.click(u"mCutEveryChkBx"_s));
    QVERIFY(!panel.typeCount(u"6"_s));
    QVERIFY(!panel.step(true));
    QCOMPARE(panel.count(), u"5"_s);
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::defaults(u"follow"_s),
                                     u"KvAutoTapeCut=OFF KvCutLabel=5"_s));
}

void tst_dialog::countBesideASeparateAutoCut()
{
    // The cut-every box shows the auto cut that it has set itself, and the count needs the box.
    CommandRun run(u"all"_s, documents());
    QVERIFY(run.openTab());
    PanelUser panel(run.user());
    const QString box = u"mCutEveryChkBx"_s;
    QVERIFY(panel.isTicked(box));
    QVERIFY(panel.click(box));
    QVERIFY(panel.click(box));
    QVERIFY(panel.typeCount(u"42"_s));
    QVERIFY(panel.step(true));
    QVERIFY(panel.isTicked(box));
    QCOMPARE(panel.count(), u"43"_s);
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::defaults(u"all"_s), u"KvCutLabel=43"_s));
}

void tst_dialog::firstCountUnticksTheBoxBesideAutoCut()
{
    // The count makes the cut-every box show the choice of auto cut, which is off.
    CommandRun run(u"all"_s, documents());
    QVERIFY(run.openTab());
    PanelUser panel(run.user());
    QVERIFY(panel.step(true));
    QVERIFY(!panel.isTicked(u"mCutEveryChkBx"_s));
    QVERIFY(!panel.step(true));
    QCOMPARE(panel.count(), u"2"_s);
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::defaults(u"all"_s), u"KvCutLabel=2"_s));
}

void tst_dialog::presetReachesTheJob_data()
{
    QTest::addColumn<QString>("printer");
    QTest::addColumn<int>("tag");
    QTest::addColumn<QString>("changes");
    for (const PresetRow &row : presets) {
        QTest::addRow("%s %d", row.printer, row.tag)
            << QString::fromLatin1(row.printer) << row.tag << QString::fromLatin1(row.changes);
    }
}

void tst_dialog::presetReachesTheJob()
{
    QFETCH(const QString, printer);
    QFETCH(const int, tag);
    QFETCH(const QString, changes);
    CommandRun run(printer, documents());
    QVERIFY(run.openTab());
    QVERIFY(run.panel().pickPreset(tag));
    QCOMPARE(run.panel().selectedPreset(), tag);
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::seen(printer), changes));
}

void tst_dialog::presetTurnsMirrorPrintingOff()
{
    CommandRun run(u"tape"_s, documents());
    QVERIFY(run.openTab());
    QVERIFY(run.panel().click(u"mMirrorPrintChkBx"_s));
    QVERIFY(run.panel().pickPreset(11));
    QVERIFY(!run.panel().isTicked(u"mMirrorPrintChkBx"_s));
    QCOMPARE(mSite.choices(run.print()),
             SampleChoices::replaced(SampleChoices::defaults(u"tape"_s), u"KvHalfCut=ON"_s));
}

KV_TEST(tst_dialog)
#include "tst_dialog.moc"
