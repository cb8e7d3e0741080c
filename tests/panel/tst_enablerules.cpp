// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

/// Which controls the medium and the other controls leave to the user.
class EnableRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mediumAndSpecialTapeDecide_data();
    void mediumAndSpecialTapeDecide();
    void countFollowsTheCutEveryBox_data();
    void countFollowsTheCutEveryBox();
    void countStaysAsItIsUnderADisabledBox_data();
    void countStaysAsItIsUnderADisabledBox();
    void specialTapeTakesTheCountAway_data();
    void specialTapeTakesTheCountAway();
    void labelPaperDisablesHalfCutAndChainDespiteSpecialTape();
    void specialTapeGivesBackWhatItTook_data();
    void specialTapeGivesBackWhatItTook();
    void unreadablePaperCountsAsStandard_data();
    void unreadablePaperCountsAsStandard();
    void shownSpecialTapeEnablesABoxWithoutOption();
};

namespace {

enum Special {
    SpecialHidden,
    SpecialOff,
    SpecialOn,
};

/// The boxes of the rules' table in its order.
const QList<Option> ruledBoxes = {
    OptionCatalogue::RemoveBlkSpace, OptionCatalogue::HalfCut, OptionCatalogue::SpecialTape,
    OptionCatalogue::ChainPrint,     OptionCatalogue::AutoCut, OptionCatalogue::CutEvery,
};

/// The rules' table: what happens to the boxes; '+' enabled, '-' disabled, '=' left as it is.
QByteArray rulesFor(QStringView paper, Special special)
{
    const QStringView prefix = paper.left(2);
    if (prefix == u"FL") {
        return special == SpecialHidden ? "--====" : "----==";
    }
    const bool isLabel = prefix == u"DC" || prefix == u"AV" || prefix == u"C_";
    const QByteArray rest[] = {"=====", "+++++", "-+---"};
    return (isLabel ? "-" : "+") + rest[special];
}

/// A colour that no palette has.
const QColor untouched(1, 2, 3);

QColor captionColor(const PanelFixture &fixture)
{
    return fixture.panel->mCutEveryStr->palette().color(QPalette::WindowText);
}

QColor textColor(QPalette::ColorGroup group)
{
    return QGuiApplication::palette().color(group, QPalette::WindowText);
}

/// All nine boxes shown; special tape as said; the caption in a colour of its own.
void prepare(PanelFixture &fixture, const QString &paper, Special special, bool cutEveryOn,
             bool enabled)
{
    fixture.load();
    fixture.host->setPaper(paper);
    for (const Option option : everyOption) {
        fixture.box(option)->setEnabled(enabled);
    }
    fixture.setOn(specialTape, special == SpecialOn);
    fixture.box(specialTape)->setHidden(special == SpecialHidden);
    fixture.setOn(cutEvery, cutEveryOn);
    QPalette palette = fixture.panel->mCutEveryStr->palette();
    palette.setColor(QPalette::WindowText, untouched);
    fixture.panel->mCutEveryStr->setPalette(palette);
}

struct CountState
{
    bool field;
    bool stepper;

    friend bool operator==(const CountState &, const CountState &) = default;
};

CountState countState(const PanelFixture &fixture)
{
    return {fixture.panel->mCutEveryTxBx->isEnabled(), fixture.panel->mCutEveryStpr->isEnabled()};
}

void setCountState(const PanelFixture &fixture, CountState state)
{
    fixture.panel->mCutEveryTxBx->setEnabled(state.field);
    fixture.panel->mCutEveryStpr->setEnabled(state.stepper);
}

const CountState countStates[] = {{false, false}, {false, true}, {true, false}, {true, true}};
} // namespace

void EnableRulesTest::mediumAndSpecialTapeDecide_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<int>("special");
    QTest::addColumn<QByteArray>("rules");
    const char *specials[] = {"hidden", "off", "on"};
    for (const char *paper : {"DC03", "DC", "AV2055", "AV", "C_62", "C_", "FL30", "FL", "62x29",
                              "HS058", "Custom.62x100", "D", "dc03", "fl30", "XFL", "F", ""}) {
        for (const Special special : {SpecialHidden, SpecialOff, SpecialOn}) {
            QTest::addRow("paper \"%s\", special tape %s", paper, specials[special])
                << QString::fromLatin1(paper) << int(special)
                << rulesFor(QString::fromLatin1(paper), special);
        }
    }
}

void EnableRulesTest::mediumAndSpecialTapeDecide()
{
    QFETCH(QString, paper);
    QFETCH(int, special);
    QFETCH(QByteArray, rules);
    PanelFixture fixture;
    for (const bool cutEveryOn : {false, true}) {
        for (const bool before : {false, true}) {
            prepare(fixture, paper, Special(special), cutEveryOn, before);
            fixture.panel->enabledCheck_OP();
            for (int i = 0; i < ruledBoxes.size(); ++i) {
                const bool expected = rules.at(i) == '=' ? before : rules.at(i) == '+';
                QCOMPARE(fixture.box(ruledBoxes.at(i))->isEnabled(), expected);
            }
            for (const Option option :
                 {OptionCatalogue::CutAtEnd, OptionCatalogue::Mirror, OptionCatalogue::CutMark}) {
                QCOMPARE(fixture.box(option)->isEnabled(), before);
            }
            QCOMPARE(fixture.takeTold(), QStringList());
        }
    }
}

void EnableRulesTest::countFollowsTheCutEveryBox_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<int>("special");
    for (const char *paper : {"DC03", "AV2055", "C_62", "FL30", "62x29", ""}) {
        QTest::addRow("paper \"%s\", special tape hidden", paper)
            << QString::fromLatin1(paper) << int(SpecialHidden);
        QTest::addRow("paper \"%s\", special tape off", paper)
            << QString::fromLatin1(paper) << int(SpecialOff);
    }
    QTest::newRow("paper \"FL30\", special tape on") << u"FL30"_s << int(SpecialOn);
}

void EnableRulesTest::countFollowsTheCutEveryBox()
{
    QFETCH(QString, paper);
    QFETCH(int, special);
    PanelFixture fixture;
    for (const bool on : {false, true}) {
        for (const CountState &before : countStates) {
            prepare(fixture, paper, Special(special), on, true);
            setCountState(fixture, before);
            fixture.panel->enabledCheck_OP();
            const bool changes = before.field == before.stepper && before.field != on;
            const CountState expected = changes ? CountState{on, on} : before;
            const QColor color =
                changes ? textColor(on ? QPalette::Active : QPalette::Disabled) : untouched;
            QVERIFY(countState(fixture) == expected);
            QCOMPARE(captionColor(fixture), color);
        }
    }
}

void EnableRulesTest::countStaysAsItIsUnderADisabledBox_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<int>("special");
    QTest::newRow("standard paper, no special tape") << u"62x29"_s << int(SpecialHidden);
    QTest::newRow("FL paper, no special tape") << u"FL30"_s << int(SpecialHidden);
    QTest::newRow("FL paper, special tape off") << u"FL30"_s << int(SpecialOff);
    QTest::newRow("FL paper, special tape on") << u"FL30"_s << int(SpecialOn);
}

void EnableRulesTest::countStaysAsItIsUnderADisabledBox()
{
    QFETCH(QString, paper);
    QFETCH(int, special);
    PanelFixture fixture;
    for (const bool on : {false, true}) {
        for (const CountState &before : countStates) {
            prepare(fixture, paper, Special(special), on, false);
            setCountState(fixture, before);
            fixture.panel->enabledCheck_OP();
            QVERIFY(countState(fixture) == before);
            QCOMPARE(captionColor(fixture), untouched);
        }
    }
}

void EnableRulesTest::specialTapeTakesTheCountAway_data()
{
    QTest::addColumn<QString>("paper");
    for (const char *paper : {"DC03", "AV2055", "C_62", "62x29", "HS058", ""}) {
        QTest::addRow("paper \"%s\"", paper) << QString::fromLatin1(paper);
    }
}

void EnableRulesTest::specialTapeTakesTheCountAway()
{
    QFETCH(QString, paper);
    PanelFixture fixture;
    for (const bool on : {false, true}) {
        for (const CountState &before : countStates) {
            prepare(fixture, paper, SpecialOn, on, true);
            setCountState(fixture, before);
            fixture.panel->enabledCheck_OP();
            const CountState none{false, false};
            QVERIFY(countState(fixture) == none);
            // The caption is dimmed together with the stepper.
            QCOMPARE(captionColor(fixture),
                     before.stepper ? textColor(QPalette::Disabled) : untouched);
        }
    }
}

void EnableRulesTest::labelPaperDisablesHalfCutAndChainDespiteSpecialTape()
{
    PanelFixture fixture;
    fixture.show();
    // As it comes from a preset on the same paper, nothing is disabled yet.
    fixture.setOn(specialTape, true);
    QVERIFY(fixture.box(OptionCatalogue::HalfCut)->isEnabled());
    QVERIFY(fixture.box(OptionCatalogue::ChainPrint)->isEnabled());
    fixture.host->setPaper(u"FL30"_s);
    fixture.panel->enabledCheck_OP();
    // Special tape has no say there.
    QVERIFY(fixture.box(autoCut)->isEnabled());
    QVERIFY(fixture.box(cutEvery)->isEnabled());
    QVERIFY(!fixture.box(specialTape)->isEnabled());
    QVERIFY(!fixture.box(OptionCatalogue::HalfCut)->isEnabled());
    QVERIFY(!fixture.box(OptionCatalogue::ChainPrint)->isEnabled());
    QVERIFY(!fixture.box(OptionCatalogue::RemoveBlkSpace)->isEnabled());
}

void EnableRulesTest::specialTapeGivesBackWhatItTook_data()
{
    QTest::addColumn<bool>("cutEveryOn");
    QTest::newRow("cut every on") << true;
    QTest::newRow("cut every off") << false;
}

void EnableRulesTest::specialTapeGivesBackWhatItTook()
{
    QFETCH(bool, cutEveryOn);
    const QList<Option> four = {OptionCatalogue::AutoCut, OptionCatalogue::CutEvery,
                                OptionCatalogue::HalfCut, OptionCatalogue::ChainPrint};
    PanelFixture fixture;
    fixture.show();
    if (!cutEveryOn) {
        fixture.click(cutEvery);
    }
    QCOMPARE(fixture.isOn(cutEvery), cutEveryOn);

    fixture.click(specialTape);
    for (const Option option : four) {
        QVERIFY(!fixture.box(option)->isEnabled());
    }
    const CountState none{false, false};
    QVERIFY(countState(fixture) == none);
    QCOMPARE(captionColor(fixture), textColor(QPalette::Disabled));

    fixture.click(specialTape);
    for (const Option option : four) {
        QVERIFY(fixture.box(option)->isEnabled());
    }
    const CountState givenBack{cutEveryOn, cutEveryOn};
    QVERIFY(countState(fixture) == givenBack);
    QCOMPARE(captionColor(fixture), textColor(cutEveryOn ? QPalette::Active : QPalette::Disabled));
}

void EnableRulesTest::unreadablePaperCountsAsStandard_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("hasPaper");
    QTest::newRow("no name") << QString() << true;
    QTest::newRow("empty name") << u""_s << true;
    QTest::newRow("no paper") << QString() << false;
    QTest::newRow("256 bytes, too long to be read")
        << QString(u"FL"_s + QString(254, u'x')) << true;
}

void EnableRulesTest::unreadablePaperCountsAsStandard()
{
    QFETCH(QString, name);
    QFETCH(bool, hasPaper);
    PanelFixture fixture;
    prepare(fixture, name, SpecialOff, true, false);
    if (!hasPaper) {
        fixture.host->format = PageFormat();
    }
    fixture.panel->enabledCheck_OP();
    for (const Option option : ruledBoxes) {
        QVERIFY(fixture.box(option)->isEnabled());
    }
    fixture.host->setPaper(u"FL"_s + QString(253, u'x'));
    fixture.panel->enabledCheck_OP();
    QVERIFY(!fixture.box(OptionCatalogue::HalfCut)->isEnabled());
}

void EnableRulesTest::shownSpecialTapeEnablesABoxWithoutOption()
{
    PanelFixture fixture({.options = {specialTape}});
    fixture.load();
    fixture.panel->initUI();
    QVERIFY(!fixture.box(OptionCatalogue::HalfCut)->isEnabled());
    fixture.panel->updateUI();
    for (const Option option : {OptionCatalogue::AutoCut, OptionCatalogue::CutEvery,
                                OptionCatalogue::HalfCut, OptionCatalogue::ChainPrint}) {
        QVERIFY(fixture.box(option)->isEnabled());
        QVERIFY(fixture.box(option)->isHidden());
    }
}

KV_TEST(EnableRulesTest)
#include "tst_enablerules.moc"
