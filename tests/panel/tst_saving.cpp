// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "support/BundleCopy.h"

#include <array>

/// Which choices the panel tells when it saves.
class SavingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxIsSavedWhetherEnabledOrNot_data();
    void boxIsSavedWhetherEnabledOrNot();
    void everythingIsSavedInOrder_data();
    void everythingIsSavedInOrder();
    void specialTapeSwitchesCuttingOff_data();
    void specialTapeSwitchesCuttingOff();
    void hiddenSpecialTapeSwitchesNothingOff();
    void indexOfABoxIsItsState();
    void boxStateIsClampedToTheChoices_data();
    void boxStateIsClampedToTheChoices();
    void nothingIsSavedWithoutPrintSettings_data();
    void nothingIsSavedWithoutPrintSettings();
    void markedChoiceIsSavedWithoutABox_data();
    void markedChoiceIsSavedWithoutABox();
    void countIsTheMarkedOne_data();
    void countIsTheMarkedOne();
    void countWithoutFieldFallsBackToTheDefault();
    void autoCutFollowsCutEveryByOnAndOff();
    void autoCutFollowsItsMarkWithoutField_data();
    void autoCutFollowsItsMarkWithoutField();
    void autoCutIsOffWithoutTheCutEveryBox();
    void missingAutoCutIsNotSaved();
    void cutEveryWithoutCountsSavesNothing();
    void savingRemoveBlankSpaceEnablesItOnStandardPaperOnly_data();
    void savingRemoveBlankSpaceEnablesItOnStandardPaperOnly();
};

namespace {

using Saver = void (OptionPDE13_v400_::*)();
using Panel = OptionPDE13_v400_;

/// In the catalogue's order.
constexpr std::array<Saver, 9> savers = {
    &Panel::saveSetting_CutLabel,    &Panel::saveSetting_CutAtEnd,
    &Panel::saveSetting_Mirror,      &Panel::saveSetting_AutoCut,
    &Panel::saveSetting_HalfCut,     &Panel::saveSetting_ChainPrint,
    &Panel::saveSetting_SpecialTape, &Panel::saveSetting_RemoveBlkSpace,
    &Panel::saveSetting_CutMark,
};

QStringList save(PanelFixture &fixture, Option option)
{
    fixture.takeTold();
    (*fixture.panel.*savers.at(option))();
    return fixture.takeTold();
}

void setAll(const PanelFixture &fixture, bool on)
{
    for (const Option option : everyOption) {
        fixture.setOn(option, on);
    }
}

} // namespace

void SavingTest::boxIsSavedWhetherEnabledOrNot_data()
{
    addOptionRows(everyOptionBut(cutEvery));
}

void SavingTest::boxIsSavedWhetherEnabledOrNot()
{
    QFETCH(int, option);
    const auto saved = Option(option);
    PanelFixture fixture;
    fixture.load();
    for (const bool on : {true, false}) {
        for (const bool enabled : {true, false}) {
            fixture.setOn(saved, on);
            fixture.box(saved)->setEnabled(enabled);
            const QString choice = on ? u"ON"_s : u"OFF"_s;
            QCOMPARE(save(fixture, saved), QStringList{pairOf(saved, choice)});
            QCOMPARE(fixture.isOn(saved), on);
        }
    }
}

void SavingTest::everythingIsSavedInOrder_data()
{
    QTest::addColumn<bool>("separateAutoCut");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QStringList>("told");
    const QStringList off = {
        u"KvCutLabel=7"_s,      u"KvCutAtEnd=OFF"_s,       u"KvMirror=OFF"_s,
        u"KvAutoTapeCut=OFF"_s, u"KvHalfCut=OFF"_s,        u"KvChainPrint=OFF"_s,
        u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s, u"KvCutMark=OFF"_s};
    QStringList on = off;
    on.replaceInStrings(u"OFF"_s, u"ON"_s);
    on.replace(6, u"KvSpecialTape=OFF"_s);
    const auto autoCutFirst = [](QStringList told) {
        told.move(3, 0);
        return told;
    };
    QTest::newRow("auto cut by its own box, off") << true << false << off;
    QTest::newRow("auto cut by its own box, on") << true << true << on;
    QTest::newRow("auto cut by cut every, off") << false << false << autoCutFirst(off);
    QTest::newRow("auto cut by cut every, on") << false << true << autoCutFirst(on);
}

void SavingTest::everythingIsSavedInOrder()
{
    QFETCH(bool, separateAutoCut);
    QFETCH(bool, on);
    QFETCH(QStringList, told);
    PanelFixture fixture({.separateAutoCut = separateAutoCut});
    fixture.load();
    fixture.host->mark("KvCutLabel", "7");
    setAll(fixture, on);
    fixture.setOn(specialTape, false);
    QString error = u"untouched"_s;
    QVERIFY(fixture.panel->saveValuesAndReturnError(&error));
    QCOMPARE(error, u"untouched"_s);
    QCOMPARE(fixture.takeTold(), told);
    fixture.panel->setValuesToKey();
    QCOMPARE(fixture.takeTold(), told);
}

void SavingTest::specialTapeSwitchesCuttingOff_data()
{
    QTest::addColumn<bool>("separateAutoCut");
    QTest::addColumn<QStringList>("told");
    QStringList told = {u"KvCutLabel=1"_s,      u"KvCutAtEnd=ON"_s,       u"KvMirror=ON"_s,
                        u"KvAutoTapeCut=OFF"_s, u"KvHalfCut=OFF"_s,       u"KvChainPrint=OFF"_s,
                        u"KvSpecialTape=ON"_s,  u"KvRemoveBlkSpace=ON"_s, u"KvCutMark=OFF"_s};
    QTest::newRow("auto cut by its own box") << true << told;
    told.move(3, 0);
    QTest::newRow("auto cut by cut every") << false << told;
}

void SavingTest::specialTapeSwitchesCuttingOff()
{
    QFETCH(bool, separateAutoCut);
    QFETCH(QStringList, told);
    PanelFixture fixture({.separateAutoCut = separateAutoCut});
    fixture.load();
    setAll(fixture, true);
    fixture.panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(fixture.takeTold(), told);
    QCOMPARE(fixture.optionsOn(), everyOption);
}

void SavingTest::hiddenSpecialTapeSwitchesNothingOff()
{
    PanelFixture fixture({.options = everyOptionBut(specialTape)});
    fixture.load();
    setAll(fixture, true);
    fixture.panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(fixture.takeTold(),
             QStringList({u"KvCutLabel=1"_s, u"KvCutAtEnd=ON"_s, u"KvMirror=ON"_s,
                          u"KvAutoTapeCut=ON"_s, u"KvHalfCut=ON"_s, u"KvChainPrint=ON"_s,
                          u"KvRemoveBlkSpace=ON"_s, u"KvCutMark=ON"_s}));
}

void SavingTest::indexOfABoxIsItsState()
{
    PanelFixture fixture;
    fixture.load();
    CheckBox *box = fixture.box(OptionCatalogue::HalfCut);
    CheckBox *special = fixture.box(specialTape);
    for (const bool on : {false, true}) {
        box->setState(on);
        special->setState(false);
        QCOMPARE(fixture.panel->indexForSaveAutoChain(box), qint32(on));
        special->setState(true);
        QCOMPARE(fixture.panel->indexForSaveAutoChain(box), 0);
        special->hide();
        QCOMPARE(fixture.panel->indexForSaveAutoChain(box), qint32(on));
        special->show();
    }
    QCOMPARE(fixture.panel->indexForSaveAutoChain(nullptr), 0);
}

void SavingTest::boxStateIsClampedToTheChoices_data()
{
    addOptionRows(everyOptionBut(cutEvery));
}

void SavingTest::boxStateIsClampedToTheChoices()
{
    QFETCH(int, option);
    const auto saved = Option(option);
    const std::pair<QByteArrayList, QStringList> cases[] = {
        {{"ONLY"}, {pairOf(saved, u"ONLY"_s), pairOf(saved, u"ONLY"_s)}},
        {{"A", "B", "C"}, {pairOf(saved, u"A"_s), pairOf(saved, u"B"_s)}},
        {{}, {}}};
    for (const auto &[choices, told] : cases) {
        PanelFixture fixture(printerWith(saved, choices, choices.value(0)));
        fixture.load();
        fixture.setOn(saved, false);
        QStringList found = save(fixture, saved);
        fixture.setOn(saved, true);
        found += save(fixture, saved);
        QCOMPARE(found, told);
    }
}

void SavingTest::nothingIsSavedWithoutPrintSettings_data()
{
    QTest::addColumn<bool>("separateAutoCut");
    QTest::addColumn<bool>("hasView");
    for (const bool separate : {true, false}) {
        for (const bool view : {true, false}) {
            QTest::addRow("auto cut by %s, %s", separate ? "its own box" : "cut every",
                          view ? "with view" : "without view")
                << separate << view;
        }
    }
}

void SavingTest::nothingIsSavedWithoutPrintSettings()
{
    QFETCH(bool, separateAutoCut);
    QFETCH(bool, hasView);
    PanelFixture fixture({.separateAutoCut = separateAutoCut});
    fixture.host->settings.reset();
    fixture.host->setPaper(u"FL30"_s, 82.0);
    fixture.build();
    if (hasView) {
        fixture.panel->panelView();
    }
    QVERIFY(fixture.panel->saveValuesAndReturnError(nullptr));
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.panel->getTapeState(), 1);
    QVERIFY(!hasView || !fixture.box(OptionCatalogue::RemoveBlkSpace)->isEnabled());
}

void SavingTest::markedChoiceIsSavedWithoutABox_data()
{
    addOptionRows(everyOptionBut(cutEvery));
}

void SavingTest::markedChoiceIsSavedWithoutABox()
{
    QFETCH(int, option);
    const auto saved = Option(option);
    const char *keyword = factsOf(saved).keyword;
    PanelFixture fixture(printerWith(saved, {"A", "B", "C"}, "B"));
    fixture.build();
    for (const char *marked : {"A", "B", "C"}) {
        fixture.host->mark(keyword, marked);
        QCOMPARE(save(fixture, saved), QStringList{pairOf(saved, QString::fromLatin1(marked))});
    }
    fixture.unmark(keyword);
    fixture.host->marks = false;
    QCOMPARE(save(fixture, saved), QStringList{pairOf(saved, u"B"_s)});
    qstrncpy(fixture.panel->option(saved)->defchoice, "none", PPD_MAX_NAME);
    QCOMPARE(save(fixture, saved), QStringList{pairOf(saved, u"A"_s)});
}

void SavingTest::countIsTheMarkedOne_data()
{
    QTest::addColumn<QByteArray>("marked");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QStringList>("told");
    QTest::newRow("1") << QByteArray("1") << u"1"_s << QStringList{u"KvCutLabel=1"_s};
    QTest::newRow("99") << QByteArray("99") << u"99"_s << QStringList{u"KvCutLabel=99"_s};
    QTest::newRow("the field shows another")
        << QByteArray("12") << u"34"_s << QStringList{u"KvCutLabel=12"_s};
    QTest::newRow("none marked: the smallest")
        << QByteArray() << u"34"_s << QStringList{u"KvCutLabel=1"_s};
}

void SavingTest::countIsTheMarkedOne()
{
    QFETCH(QByteArray, marked);
    QFETCH(QString, field);
    QFETCH(QStringList, told);
    PanelFixture fixture({.defaults = {{cutEvery, "7"}}});
    fixture.load();
    fixture.setCount(field);
    if (marked.isNull()) {
        fixture.unmark("KvCutLabel");
    } else {
        fixture.host->mark("KvCutLabel", marked);
    }
    for (const bool on : {true, false}) {
        fixture.setOn(cutEvery, on);
        QCOMPARE(save(fixture, cutEvery), told);
    }
}

void SavingTest::countWithoutFieldFallsBackToTheDefault()
{
    PanelFixture fixture({.defaults = {{cutEvery, "7"}}});
    fixture.build();
    fixture.host->mark("KvCutLabel", "12");
    QCOMPARE(save(fixture, cutEvery), QStringList{u"KvCutLabel=12"_s});
    fixture.unmark("KvCutLabel");
    QCOMPARE(save(fixture, cutEvery), QStringList{u"KvCutLabel=7"_s});
}

void SavingTest::autoCutFollowsCutEveryByOnAndOff()
{
    // The choices' own keywords play no part.
    PanelFixture fixture(printerWith(autoCut, {"No", "Yes"}, "No", false));
    fixture.load();
    for (const bool on : {true, false}) {
        fixture.setOn(cutEvery, on);
        fixture.setOn(autoCut, !on);
        QCOMPARE(
            save(fixture, cutEvery),
            QStringList({on ? u"KvAutoTapeCut=ON"_s : u"KvAutoTapeCut=OFF"_s, u"KvCutLabel=1"_s}));
        QCOMPARE(save(fixture, autoCut), QStringList());
    }
}

void SavingTest::autoCutFollowsItsMarkWithoutField_data()
{
    QTest::addColumn<QByteArray>("marked");
    QTest::addColumn<QByteArray>("defaultChoice");
    QTest::addColumn<QString>("told");
    const QByteArray none;
    QTest::newRow("first choice") << QByteArray("A") << QByteArray("B") << u"OFF"_s;
    QTest::newRow("second choice") << QByteArray("B") << QByteArray("A") << u"ON"_s;
    QTest::newRow("third choice") << QByteArray("C") << QByteArray("B") << u"OFF"_s;
    QTest::newRow("not marked, second by default") << none << QByteArray("B") << u"ON"_s;
    QTest::newRow("not marked, first by default") << none << QByteArray("A") << u"OFF"_s;
}

void SavingTest::autoCutFollowsItsMarkWithoutField()
{
    QFETCH(QByteArray, marked);
    QFETCH(QByteArray, defaultChoice);
    QFETCH(QString, told);
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(u"mCutEveryTxBx"_s));
    PanelFixture fixture(printerWith(autoCut, {"A", "B", "C"}, defaultChoice, false), copy.open());
    fixture.load();
    if (marked.isNull()) {
        fixture.unmark("KvAutoTapeCut");
    } else {
        fixture.host->mark("KvAutoTapeCut", marked);
    }
    QCOMPARE(save(fixture, cutEvery), QStringList({u"KvAutoTapeCut="_s + told, u"KvCutLabel=1"_s}));
}

void SavingTest::autoCutIsOffWithoutTheCutEveryBox()
{
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(u"mCutEveryChkBx"_s));
    PanelFixture fixture(TestPrinter{.separateAutoCut = false, .defaults = {{autoCut, "ON"}}},
                         copy.open());
    fixture.load();
    QCOMPARE(save(fixture, cutEvery), QStringList({u"KvAutoTapeCut=OFF"_s, u"KvCutLabel=1"_s}));
}

void SavingTest::missingAutoCutIsNotSaved()
{
    PanelFixture fixture({.options = everyOptionBut(autoCut), .separateAutoCut = false});
    fixture.load();
    fixture.setOn(cutEvery, true);
    QCOMPARE(save(fixture, cutEvery), QStringList{u"KvCutLabel=1"_s});
    QCOMPARE(save(fixture, autoCut), QStringList());
}

void SavingTest::cutEveryWithoutCountsSavesNothing()
{
    for (const bool separate : {true, false}) {
        PanelFixture fixture(printerWith(cutEvery, {}, {}, separate));
        fixture.load();
        QVERIFY(fixture.panel->choices(cutEvery).isEmpty());
        fixture.setOn(cutEvery, true);
        QCOMPARE(save(fixture, cutEvery), QStringList());
    }
}

void SavingTest::savingRemoveBlankSpaceEnablesItOnStandardPaperOnly_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<int>("tapeState");
    QTest::newRow("standard size") << u"62x29"_s << 0;
    QTest::newRow("size that the PPD does not list") << u"DC99"_s << 0;
    QTest::newRow("DC") << u"DC03"_s << 1;
    QTest::newRow("FL") << u"FL30"_s << 1;
    QTest::newRow("custom size") << u"Custom.62x100"_s << 2;
    QTest::newRow("no name") << QString() << 2;
}

void SavingTest::savingRemoveBlankSpaceEnablesItOnStandardPaperOnly()
{
    QFETCH(QString, paper);
    QFETCH(int, tapeState);
    for (const bool hasOption : {true, false}) {
        PanelFixture fixture(
            {.options = hasOption ? everyOption : everyOptionBut(OptionCatalogue::RemoveBlkSpace)});
        fixture.load();
        CheckBox *box = fixture.box(OptionCatalogue::RemoveBlkSpace);
        box->setState(true);
        fixture.host->setPaper(paper, 82.0);
        for (const bool before : {true, false}) {
            box->setEnabled(before);
            QCOMPARE(save(fixture, OptionCatalogue::RemoveBlkSpace),
                     hasOption ? QStringList{u"KvRemoveBlkSpace=ON"_s} : QStringList());
            QCOMPARE(box->isEnabled(), tapeState == 0);
            QCOMPARE(fixture.panel->getTapeState(), tapeState);
        }
    }
}

KV_TEST(SavingTest)
#include "tst_saving.moc"
