// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include <array>

/// How the controls are set from the PPD when the panel is first shown.
class InitialisersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void titleIsThePPDsTextTranslated_data();
    void titleIsThePPDsTextTranslated();
    void unreadableTextFallsBackToTheLabel_data();
    void unreadableTextFallsBackToTheLabel();
    void captionSaysLabels();
    void countStartsAtTheDefault_data();
    void countStartsAtTheDefault();
    void rowsWithoutOptionAreLeftAsTheNibMadeThem();
    void autoCutWithoutABoxOfItsOwnKeepsItsState();
    void removeBlankSpaceFollowsTheMedium_data();
    void removeBlankSpaceFollowsTheMedium();
    void removeBlankSpaceFollowsTheMediumWithoutItsOption();
    void tapeStateIsRemembered();
    void optionWithoutChoicesKeepsTheState_data();
    void optionWithoutChoicesKeepsTheState();
};

namespace {
using Initialiser = void (OptionPDE13_v400_::*)();
using Panel = OptionPDE13_v400_;

/// In the catalogue's order.
constexpr std::array<Initialiser, 9> initialisers = {
    &Panel::initializeUI_CutLabel,    &Panel::initializeUI_CutAtEnd,
    &Panel::initializeUI_Mirror,      &Panel::initializeUI_AutoCut,
    &Panel::initializeUI_HalfCut,     &Panel::initializeUI_ChainPrint,
    &Panel::initializeUI_SpecialTape, &Panel::initializeUI_RemoveBlkSpace,
    &Panel::initializeUI_CutMark,
};

void initialise(PanelFixture &fixture, Option option)
{
    (*fixture.panel.*initialisers.at(option))();
}

} // namespace

void InitialisersTest::titleIsThePPDsTextTranslated_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("title");
    for (const Option option : everyOption) {
        const char *keyword = factsOf(option).keyword;
        QTest::addRow("%s, unknown text", keyword)
            << int(option) << QByteArray("50 % & gr\xC3\xBCn %1") << u"50 % & gr\u00FCn %1"_s;
        QTest::addRow("%s, text that the bundle translates", keyword)
            << int(option) << QByteArray("RS_STitle_Yes") << u"Yes"_s;
        QTest::addRow("%s, no text", keyword)
            << int(option) << QByteArray() << QString::fromLatin1(keyword);
    }
}

void InitialisersTest::titleIsThePPDsTextTranslated()
{
    QFETCH(int, option);
    QFETCH(QByteArray, text);
    QFETCH(QString, title);
    PanelFixture fixture(printerWith(Option(option), {"OFF", "ON"}, "OFF", true, text));
    fixture.load();
    initialise(fixture, Option(option));
    QCOMPARE(fixture.box(Option(option))->title(), title);
}

void InitialisersTest::unreadableTextFallsBackToTheLabel_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<QString>("title");
    const QStringList titles = {u"Cut every"_s,
                                u"Cut at end"_s,
                                u"Mirror printing"_s,
                                u"Auto cut"_s,
                                u"Half cut"_s,
                                u"Chain printing"_s,
                                u"Special tape (no cutting)"_s,
                                u"Remove blank space"_s,
                                u"Cut marks"_s};
    for (const Option option : everyOption) {
        QTest::newRow(factsOf(option).keyword) << int(option) << titles.at(int(option));
    }
}

void InitialisersTest::unreadableTextFallsBackToTheLabel()
{
    QFETCH(int, option);
    QFETCH(QString, title);
    PanelFixture fixture(printerWith(Option(option), {"OFF", "ON"}, "OFF", true, "\xFF\xFE"));
    fixture.load();
    initialise(fixture, Option(option));
    QCOMPARE(fixture.box(Option(option))->title(), title);

    fixture.bundle->setLanguages({});
    initialise(fixture, Option(option));
    QCOMPARE(fixture.box(Option(option))->title(), QLatin1String(factsOf(Option(option)).labelKey));
}

void InitialisersTest::captionSaysLabels()
{
    PanelFixture fixture;
    fixture.load();
    fixture.panel->mCutEveryStr->setText(u"-"_s);
    fixture.panel->initializeUI_CutLabel();
    QCOMPARE(fixture.panel->mCutEveryStr->text(), u"labels"_s);
    fixture.bundle->setLanguages({});
    fixture.panel->initializeUI_CutLabel();
    QCOMPARE(fixture.panel->mCutEveryStr->text(), u"RS_Labels"_s);
}

void InitialisersTest::countStartsAtTheDefault_data()
{
    QTest::addColumn<QByteArray>("defaultChoice");
    QTest::addColumn<QString>("field");
    QTest::addColumn<int>("stepper");
    QTest::addColumn<bool>("ticked");
    QTest::newRow("1") << QByteArray("1") << u"1"_s << 1 << true;
    QTest::newRow("7") << QByteArray("7") << u"7"_s << 7 << false;
    QTest::newRow("99") << QByteArray("99") << u"99"_s << 99 << false;
    QTest::newRow("OFF") << QByteArray("OFF") << u"OFF"_s << 0 << false;
    QTest::newRow("007x") << QByteArray("007x") << u"007x"_s << 7 << false;
}

void InitialisersTest::countStartsAtTheDefault()
{
    QFETCH(QByteArray, defaultChoice);
    QFETCH(QString, field);
    QFETCH(int, stepper);
    QFETCH(bool, ticked);
    PanelFixture fixture(
        printerWith(OptionCatalogue::CutEvery, {"0", defaultChoice, "100"}, defaultChoice));
    fixture.load();
    fixture.panel->mCutEveryTxBx->setEnabled(false);
    fixture.panel->mCutEveryStpr->setEnabled(false);
    fixture.panel->initializeUI_CutLabel();
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), field);
    QCOMPARE(fixture.panel->mCutEveryStpr->intValue(), stepper);
    QCOMPARE(fixture.isOn(OptionCatalogue::CutEvery), ticked);
    QVERIFY(fixture.box(OptionCatalogue::CutEvery)->isEnabled());
    QVERIFY(fixture.panel->mCutEveryTxBx->isEnabled());
    QVERIFY(fixture.panel->mCutEveryStpr->isEnabled());
}

void InitialisersTest::rowsWithoutOptionAreLeftAsTheNibMadeThem()
{
    PanelFixture fixture({.options = {}});
    fixture.bundle->setLanguages({});
    fixture.load();
    QStringList titles;
    for (const Option option : everyOption) {
        titles.append(fixture.box(option)->text());
        fixture.setOn(option, true);
    }
    fixture.panel->initUI();
    for (const Option option : everyOption) {
        QCOMPARE(fixture.box(option)->text(), titles.at(int(option)));
        QVERIFY(fixture.isOn(option));
        QCOMPARE(fixture.box(option)->isEnabled(), option == OptionCatalogue::RemoveBlkSpace);
    }
    QCOMPARE(fixture.panel->mCutEveryStr->text(), u"labels"_s);
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), QString());
    QVERIFY(fixture.panel->mCutEveryTxBx->isEnabled());
    QVERIFY(fixture.panel->mCutEveryStpr->isEnabled());
}

void InitialisersTest::autoCutWithoutABoxOfItsOwnKeepsItsState()
{
    for (const bool separate : {false, true}) {
        PanelFixture fixture(
            {.separateAutoCut = separate, .defaults = {{OptionCatalogue::AutoCut, "ON"}}});
        fixture.load();
        CheckBox *box = fixture.box(OptionCatalogue::AutoCut);
        box->setTitle(u"before"_s);
        box->setEnabled(false);
        fixture.panel->initializeUI_AutoCut();
        QVERIFY(box->isEnabled());
        QCOMPARE(box->isChecked(), separate);
        QCOMPARE(box->title(), separate ? u"KvAutoTapeCut"_s : u"before"_s);
    }
}

void InitialisersTest::removeBlankSpaceFollowsTheMedium_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<int>("tapeState");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("standard size") << u"62x29"_s << 0 << true;
    QTest::newRow("DC") << u"DC03"_s << 1 << false;
    QTest::newRow("AV") << u"AV2055"_s << 1 << false;
    QTest::newRow("FL") << u"FL30"_s << 1 << false;
    QTest::newRow("C_") << u"C_62"_s << 1 << false;
    QTest::newRow("DC that the PPD does not list") << u"DC99"_s << 0 << true;
    QTest::newRow("custom size") << u"Custom.62x100"_s << 2 << true;
    QTest::newRow("name known to the ticket alone") << QString() << 2 << true;
}

void InitialisersTest::removeBlankSpaceFollowsTheMedium()
{
    QFETCH(QString, paper);
    QFETCH(int, tapeState);
    QFETCH(bool, enabled);
    PanelFixture fixture({.defaults = {{OptionCatalogue::RemoveBlkSpace, "ON"}}});
    fixture.load();
    fixture.host->setPaper(paper, 82.0);
    fixture.host->setTicket({{u"MqPaperName2"_s, u"DC03"_s}});
    for (const bool before : {false, true}) {
        fixture.box(OptionCatalogue::RemoveBlkSpace)->setEnabled(before);
        fixture.panel->initializeUI_RemoveBlkSpace();
        QCOMPARE(fixture.box(OptionCatalogue::RemoveBlkSpace)->isEnabled(), enabled);
        QCOMPARE(fixture.panel->getTapeState(), tapeState);
        QVERIFY(fixture.isOn(OptionCatalogue::RemoveBlkSpace));
    }
}

void InitialisersTest::removeBlankSpaceFollowsTheMediumWithoutItsOption()
{
    PanelFixture fixture({.options = {}});
    fixture.load();
    CheckBox *box = fixture.box(OptionCatalogue::RemoveBlkSpace);
    box->setEnabled(false);
    fixture.panel->initializeUI_RemoveBlkSpace();
    QVERIFY(box->isEnabled());
    fixture.host->setPaper(u"FL30"_s, 82.0);
    fixture.panel->initializeUI_RemoveBlkSpace();
    QVERIFY(!box->isEnabled());
    QCOMPARE(fixture.panel->getTapeState(), 1);
}

void InitialisersTest::tapeStateIsRemembered()
{
    PanelFixture fixture;
    fixture.build();
    QCOMPARE(fixture.panel->getTapeState(), 0);
    for (const qint32 state : {2, 1, -7, 0}) {
        fixture.panel->setTapeState(state);
        QCOMPARE(fixture.panel->getTapeState(), state);
        QCOMPARE(fixture.panel->mTapeState, state);
    }
}

void InitialisersTest::optionWithoutChoicesKeepsTheState_data()
{
    QTest::addColumn<int>("option");
    for (const Option option : everyOption) {
        QTest::newRow(factsOf(option).keyword) << int(option);
    }
}

void InitialisersTest::optionWithoutChoicesKeepsTheState()
{
    QFETCH(int, option);
    const auto empty = Option(option);
    PanelFixture fixture(printerWith(empty, {}, {}, true, "Nothing to choose"));
    fixture.load();
    QVERIFY(!fixture.panel->choices(empty).isNull());
    QVERIFY(fixture.panel->choices(empty).isEmpty());
    for (const bool on : {true, false}) {
        fixture.setOn(empty, on);
        initialise(fixture, empty);
        QCOMPARE(fixture.isOn(empty), on);
    }
    QCOMPARE(fixture.box(empty)->title(), u"Nothing to choose"_s);
}

KV_TEST(InitialisersTest)
#include "tst_initialisers.moc"
