// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

/// What happens besides the user's actions: printing, choices from elsewhere, another paper.
class PrintTimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printingGivesUnmarkedOptionsTheirDefault();
    void printingLeavesMarkedOptionsAlone();
    void printingToleratesOptionsWithoutDefault();
    void choiceFromElsewhereBecomesTheSelection_data();
    void choiceFromElsewhereBecomesTheSelection();
    void choiceThatTheOptionLacksClearsTheSelection();
    void unknownKeywordChangesNothing_data();
    void unknownKeywordChangesNothing();
    void choiceForAnAbsentOptionIsIgnored();
    void heatShrinkTubeTurnsAutoCutOff_data();
    void heatShrinkTubeTurnsAutoCutOff();
    void paperChangeRefreshesEverythingAndAppliesTheRules();
    void paperChangeToHeatShrinkTubeUnticksCutEvery();
};

namespace {
const QStringList allDefaults = {
    u"KvCutLabel=7"_s,      u"KvCutAtEnd=OFF"_s,       u"KvMirror=ON"_s,
    u"KvAutoTapeCut=OFF"_s, u"KvHalfCut=OFF"_s,        u"KvChainPrint=OFF"_s,
    u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvCutMark=ON"_s};

TestPrinter printer()
{
    return {.defaults = {{OptionCatalogue::CutEvery, "7"},
                         {OptionCatalogue::Mirror, "ON"},
                         {OptionCatalogue::CutMark, "ON"}}};
}

QList<const PDEChoice *> selections(const PanelFixture &fixture)
{
    QList<const PDEChoice *> selections;
    for (const Option option : everyOption) {
        selections.append(fixture.panel->selection(option));
    }
    return selections;
}
} // namespace

void PrintTimeTest::printingGivesUnmarkedOptionsTheirDefault()
{
    PanelFixture fixture(printer());
    fixture.build();
    for (const Option option : everyOption) {
        fixture.unmark(factsOf(option).keyword);
        QVERIFY(fixture.host->marked(factsOf(option).keyword).isNull());
    }
    QVERIFY(fixture.panel->shouldPrint());
    QCOMPARE(fixture.takeTold(), allDefaults);
    QVERIFY(fixture.panel->shouldPrint());
    QCOMPARE(fixture.takeTold(), QStringList());
}

void PrintTimeTest::printingLeavesMarkedOptionsAlone()
{
    PanelFixture fixture(printer());
    fixture.show();
    QVERIFY(fixture.panel->shouldPrint());
    QCOMPARE(fixture.takeTold(), QStringList());

    fixture.unmark("KvMirror");
    fixture.host->mark("KvHalfCut", "ON");
    QVERIFY(fixture.panel->shouldPrint());
    QCOMPARE(fixture.takeTold(), QStringList{u"KvMirror=ON"_s});
    QCOMPARE(fixture.host->marked("KvHalfCut"), u"ON"_s);
}

void PrintTimeTest::printingToleratesOptionsWithoutDefault()
{
    PPDText text = TestPrinter{.options = {OptionCatalogue::HalfCut}}.text();
    text.option("KvMirror", {}, {}).option("KvCutMark", {"A", "B"}, "A");
    PanelFixture fixture(text);
    fixture.build();
    fixture.unmark("KvHalfCut");
    fixture.unmark("KvCutMark");
    qstrncpy(fixture.panel->option(OptionCatalogue::CutMark)->defchoice, "none", PPD_MAX_NAME);
    QVERIFY(fixture.panel->shouldPrint());
    QCOMPARE(fixture.takeTold(), QStringList{u"KvHalfCut=OFF"_s});
}

void PrintTimeTest::choiceFromElsewhereBecomesTheSelection_data()
{
    QTest::addColumn<int>("option");
    for (const Option option : everyOption) {
        QTest::newRow(factsOf(option).keyword) << int(option);
    }
}

void PrintTimeTest::choiceFromElsewhereBecomesTheSelection()
{
    QFETCH(int, option);
    const auto changed = Option(option);
    const QString keyword = QLatin1String(factsOf(changed).keyword);
    PanelFixture fixture;
    fixture.load();
    const QList<Option> on = fixture.optionsOn();
    for (const int index : {1, 0}) {
        const PDEChoice *choice = fixture.panel->choices(changed).at(index);
        fixture.panel->PPDOptionKeyValueDidChange(keyword, choice->ppdTitle());
        QCOMPARE(fixture.panel->selection(changed), choice);
        for (const Option other : everyOptionBut(changed)) {
            QVERIFY(!fixture.panel->selection(other));
        }
    }
    QVERIFY(!fixture.panel->mAutoCut_CutEvery_Selection);
    QCOMPARE(fixture.optionsOn(), on);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void PrintTimeTest::choiceThatTheOptionLacksClearsTheSelection()
{
    PanelFixture fixture;
    fixture.build();
    for (const QString &choice : {u"on"_s, u"MAYBE"_s, u""_s}) {
        fixture.panel->PPDOptionKeyValueDidChange(u"KvMirror"_s, u"ON"_s);
        QVERIFY(fixture.panel->selection(OptionCatalogue::Mirror));
        fixture.panel->PPDOptionKeyValueDidChange(u"KvMirror"_s, choice);
        QVERIFY(!fixture.panel->selection(OptionCatalogue::Mirror));
    }
}

void PrintTimeTest::unknownKeywordChangesNothing_data()
{
    QTest::addColumn<QString>("keyword");
    QTest::addColumn<QString>("choice");
    QTest::newRow("another option") << u"PageSize"_s << u"OFF"_s;
    QTest::newRow("lower case") << u"kvmirror"_s << u"OFF"_s;
    QTest::newRow("longer") << u"KvMirrors"_s << u"OFF"_s;
    QTest::newRow("shorter") << u"KvMirro"_s << u"OFF"_s;
    QTest::newRow("empty") << u""_s << u"OFF"_s;
    QTest::newRow("no keyword") << QString() << u"OFF"_s;
    QTest::newRow("no choice") << u"KvMirror"_s << QString();
}

void PrintTimeTest::unknownKeywordChangesNothing()
{
    QFETCH(QString, keyword);
    QFETCH(QString, choice);
    PanelFixture fixture;
    fixture.show();
    fixture.panel->PPDOptionKeyValueDidChange(u"KvMirror"_s, u"ON"_s);
    const QList<const PDEChoice *> before = selections(fixture);
    QVERIFY(!before.contains(nullptr));
    fixture.panel->PPDOptionKeyValueDidChange(keyword, choice);
    QCOMPARE(selections(fixture), before);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void PrintTimeTest::choiceForAnAbsentOptionIsIgnored()
{
    PanelFixture fixture({.options = everyOptionBut(OptionCatalogue::Mirror)});
    fixture.show();
    fixture.panel->PPDOptionKeyValueDidChange(u"KvMirror"_s, u"ON"_s);
    QVERIFY(!fixture.panel->selection(OptionCatalogue::Mirror));
}

void PrintTimeTest::heatShrinkTubeTurnsAutoCutOff_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<QString>("marked");
    QTest::newRow("HS058") << u"HS058"_s << u"OFF"_s;
    QTest::newRow("HS alone") << u"HS"_s << u"OFF"_s;
    QTest::newRow("name in the ticket") << QString() << u"OFF"_s;
    QTest::newRow("lower case") << u"hs058"_s << u"ON"_s;
    QTest::newRow("H") << u"H"_s << u"ON"_s;
    QTest::newRow("standard") << u"62x29"_s << u"ON"_s;
    QTest::newRow("FL") << u"FL30"_s << u"ON"_s;
    QTest::newRow("DC") << u"DC03"_s << u"ON"_s;
}

void PrintTimeTest::heatShrinkTubeTurnsAutoCutOff()
{
    QFETCH(QString, paper);
    QFETCH(QString, marked);
    for (const bool separate : {true, false}) {
        PanelFixture fixture(
            {.separateAutoCut = separate, .defaults = {{OptionCatalogue::AutoCut, "ON"}}});
        fixture.show();
        fixture.host->mark("KvAutoTapeCut", "ON");
        fixture.host->setTicket({{u"MqPaperName2"_s, u"HS12"_s}});
        fixture.host->changePaper(paper);
        QCOMPARE(fixture.host->marked("KvAutoTapeCut"), marked);
        QCOMPARE(fixture.takeTold(), QStringList());
    }
}

void PrintTimeTest::paperChangeRefreshesEverythingAndAppliesTheRules()
{
    const QList<quint32> everyItem = {0x100,  0x200,  0x400,   0x800,   0x1000,
                                      0x2000, 0x4000, 0x10000, 0x80000, 0x40000};
    PanelFixture fixture;
    fixture.show();
    for (const auto &[paper, reread] :
         {std::pair(u"FL30"_s, QList<quint32>()), std::pair(u"HS058"_s, QList<quint32>{0x100}),
          std::pair(u"62x29"_s, QList<quint32>())}) {
        fixture.panel->refreshed.clear();
        fixture.panel->reread.clear();
        PaintWatcher preview(fixture.panel->mOptionView);
        fixture.host->changePaper(paper);
        QCOMPARE(fixture.panel->refreshed, everyItem);
        QCOMPARE(fixture.panel->reread, reread);
        QVERIFY(preview.waitForPaint());
        const bool isFL = paper == u"FL30";
        QCOMPARE(fixture.box(OptionCatalogue::HalfCut)->isEnabled(), !isFL);
        QCOMPARE(fixture.box(OptionCatalogue::SpecialTape)->isEnabled(), !isFL);
        QCOMPARE(fixture.box(OptionCatalogue::RemoveBlkSpace)->isEnabled(), !isFL);
    }
}

void PrintTimeTest::paperChangeToHeatShrinkTubeUnticksCutEvery()
{
    PanelFixture fixture({.defaults = {{OptionCatalogue::AutoCut, "ON"}}});
    fixture.show();
    fixture.click(OptionCatalogue::CutEvery);
    fixture.click(OptionCatalogue::CutEvery);
    QVERIFY(fixture.isOn(OptionCatalogue::CutEvery));
    QVERIFY(fixture.panel->mCutEveryTxBx->isEnabled());
    fixture.takeTold();

    fixture.host->changePaper(u"HS058"_s);
    QVERIFY(!fixture.isOn(OptionCatalogue::CutEvery));
    QVERIFY(!fixture.panel->mCutEveryTxBx->isEnabled());
    QCOMPARE(fixture.panel->mAutoCut_CutEvery_Selection->ppdTitle(), u"OFF"_s);
    QCOMPARE(fixture.takeTold(), QStringList());
}

KV_TEST(PrintTimeTest)
#include "tst_printtime.moc"
