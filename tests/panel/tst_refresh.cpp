// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

/// How the PPD's marks become selections, and selections become what the controls show.
class RefreshTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void markedChoiceBecomesTheSelection_data();
    void markedChoiceBecomesTheSelection();
    void severalItemsAreReadAtOnce();
    void cutEveryReadsAutoCutAsWell();
    void cutEveryAloneDecidesWhetherAutoCutIsRead();
    void absentOptionKeepsItsSelection();
    void otherItemsReadNothing();
    void selectionIsShownInTheBox_data();
    void selectionIsShownInTheBox();
    void severalItemsAreShownAtOnce();
    void foreignSelectionIsNotShown_data();
    void foreignSelectionIsNotShown();
    void disabledBoxIsKept_data();
    void disabledBoxIsKept();
    void countIsShownInFieldAndStepper_data();
    void countIsShownInFieldAndStepper();
    void cutEveryBoxShowsAutoCut();
    void cutEveryNeedsItsOwnSelection();
    void changedCountShowsAutoCutInTheCutEveryBox();
    void unknownItemStillRefreshesMenuRulesAndPreview();
    void popUpItemLeavesTheOthersAlone();
    void presetOutsideTheTableChangesNoBox_data();
    void presetOutsideTheTableChangesNoBox();
    void emptyMenuChangesNoBox();
    void menuShowsTheBoxesAsTheyHaveBecome();
    void presetThatTheMenuLacksIsNotSelected();
    void presetKeepsTheMirrorSelection();
    void mirrorPrintingIsOffAfterShowing();
};

namespace {

const PDEChoice *choiceAt(const PanelFixture &fixture, Option option, int index)
{
    return fixture.panel->choices(option).at(index);
}

} // namespace

void RefreshTest::markedChoiceBecomesTheSelection_data()
{
    addOptionRows(everyOption);
}

void RefreshTest::markedChoiceBecomesTheSelection()
{
    QFETCH(int, option);
    const auto read = Option(option);
    const OptionFacts &facts = factsOf(read);
    PanelFixture fixture(printerWith(read, {"A", "B", "C"}, "A"));
    fixture.build();
    fixture.host->mark(facts.keyword, "C");
    fixture.panel->updateMarkedSelections(facts.itemType);
    QCOMPARE(fixture.panel->selection(read), choiceAt(fixture, read, 2));
    for (const Option other : everyOptionBut(read)) {
        QVERIFY(!fixture.panel->selection(other));
    }

    // Nothing marked: the default.
    fixture.unmark(facts.keyword);
    fixture.panel->updateMarkedSelections(facts.itemType);
    QCOMPARE(fixture.panel->selection(read), choiceAt(fixture, read, 0));

    // No default either: nothing is chosen in its place.
    fixture.panel->select(read, nullptr);
    qstrncpy(fixture.panel->option(read)->defchoice, "none", PPD_MAX_NAME);
    fixture.panel->updateMarkedSelections(facts.itemType);
    QVERIFY(!fixture.panel->selection(read));
    QCOMPARE(fixture.takeTold(), QStringList());
}

void RefreshTest::severalItemsAreReadAtOnce()
{
    PanelFixture fixture;
    fixture.build();
    fixture.host->mark("KvHalfCut", "ON");
    fixture.panel->updateMarkedSelections(0x200 | 0x1000 | 0x80000 | 0x40000);
    QCOMPARE(fixture.panel->selection(halfCut), choiceAt(fixture, halfCut, 1));
    for (const Option option : {OptionCatalogue::CutAtEnd, cutMark}) {
        QCOMPARE(fixture.panel->selection(option), choiceAt(fixture, option, 0));
    }
    for (const Option option : {cutEvery, mirror, autoCut, removeBlkSpace,
                                OptionCatalogue::ChainPrint, OptionCatalogue::SpecialTape}) {
        QVERIFY(!fixture.panel->selection(option));
    }
}

void RefreshTest::cutEveryReadsAutoCutAsWell()
{
    PanelFixture fixture;
    fixture.build();
    fixture.host->mark("KvAutoTapeCut", "ON");
    fixture.panel->updateMarkedSelections(0x100);
    QCOMPARE(fixture.panel->mAutoCut_CutEvery_Selection, choiceAt(fixture, autoCut, 1));
    QVERIFY(!fixture.panel->selection(autoCut));
    fixture.unmark("KvAutoTapeCut");
    fixture.panel->updateMarkedSelections(0x100);
    QCOMPARE(fixture.panel->mAutoCut_CutEvery_Selection, choiceAt(fixture, autoCut, 0));

    fixture.host->mark("KvAutoTapeCut", "ON");
    fixture.panel->updateMarkedSelections(0x800);
    QCOMPARE(fixture.panel->selection(autoCut), choiceAt(fixture, autoCut, 1));
    QCOMPARE(fixture.panel->mAutoCut_CutEvery_Selection, choiceAt(fixture, autoCut, 0));
}

void RefreshTest::cutEveryAloneDecidesWhetherAutoCutIsRead()
{
    PanelFixture noCutEvery({.options = everyOptionBut(cutEvery)});
    noCutEvery.build();
    noCutEvery.panel->updateMarkedSelections(0x100);
    QVERIFY(!noCutEvery.panel->mAutoCut_CutEvery_Selection);

    PanelFixture noAutoCut({.options = everyOptionBut(autoCut)});
    noAutoCut.build();
    noAutoCut.panel->updateMarkedSelections(0x100);
    QCOMPARE(noAutoCut.panel->selection(cutEvery), choiceAt(noAutoCut, cutEvery, 0));
    QVERIFY(!noAutoCut.panel->mAutoCut_CutEvery_Selection);
}

void RefreshTest::absentOptionKeepsItsSelection()
{
    PanelFixture fixture({.options = {mirror}});
    fixture.build();
    const PDEChoice *any = choiceAt(fixture, mirror, 1);
    for (const Option option : everyOptionBut(mirror)) {
        fixture.panel->select(option, any);
        fixture.panel->updateMarkedSelections(factsOf(option).itemType);
        QCOMPARE(fixture.panel->selection(option), any);
    }
}

void RefreshTest::otherItemsReadNothing()
{
    PanelFixture fixture;
    fixture.build();
    for (const quint32 item : {0x40000U, 0x8000U, 0x20000U, 0xFFU, 0xFFF00000U, 0U}) {
        fixture.panel->updateMarkedSelections(item);
    }
    for (const Option option : everyOption) {
        QVERIFY(!fixture.panel->selection(option));
    }
}

void RefreshTest::selectionIsShownInTheBox_data()
{
    addOptionRows(everyOptionBut(cutEvery));
}

void RefreshTest::selectionIsShownInTheBox()
{
    QFETCH(int, option);
    const auto shown = Option(option);
    PanelFixture fixture(printerWith(shown, {"A", "B", "C"}, "A"));
    fixture.load();
    for (const int index : {1, 0, 2}) {
        fixture.panel->select(shown, choiceAt(fixture, shown, index));
        for (const bool before : {true, false}) {
            fixture.setOn(shown, before);
            fixture.panel->updateUIItem(factsOf(shown).itemType);
            const QList<Option> on = index ? QList<Option>{shown} : QList<Option>();
            QCOMPARE(fixture.optionsOn(), on);
        }
    }
    // No selection: the box is left alone.
    fixture.panel->select(shown, nullptr);
    fixture.panel->updateUIItem(factsOf(shown).itemType);
    QVERIFY(fixture.isOn(shown));
    QCOMPARE(fixture.takeTold(), QStringList());
}

void RefreshTest::severalItemsAreShownAtOnce()
{
    PanelFixture fixture;
    fixture.load();
    for (const Option option : everyOption) {
        fixture.panel->select(option, choiceAt(fixture, option, 1));
    }
    fixture.panel->updateUIItem(0x400 | 0x1000 | 0x80000);
    QCOMPARE(fixture.optionsOn(), QList<Option>({mirror, halfCut, cutMark}));
}

void RefreshTest::foreignSelectionIsNotShown_data()
{
    addOptionRows(everyOptionBut(cutEvery));
}

void RefreshTest::foreignSelectionIsNotShown()
{
    QFETCH(int, option);
    const auto shown = Option(option);
    PanelFixture other;
    other.build();
    PanelFixture fixture;
    fixture.load();
    for (const bool before : {true, false}) {
        for (const int index : {1, 0}) {
            fixture.setOn(shown, before);
            fixture.panel->select(shown, choiceAt(other, shown, index));
            fixture.panel->updateUIItem(factsOf(shown).itemType);
            QCOMPARE(fixture.isOn(shown), before);
        }
    }
}

void RefreshTest::disabledBoxIsKept_data()
{
    QTest::addColumn<int>("option");
    QTest::addColumn<bool>("kept");
    for (const Option option : everyOptionBut(cutEvery)) {
        QTest::newRow(factsOf(option).keyword)
            << int(option) << (option == removeBlkSpace || option == cutMark);
    }
}

void RefreshTest::disabledBoxIsKept()
{
    QFETCH(int, option);
    QFETCH(bool, kept);
    const auto shown = Option(option);
    PanelFixture fixture;
    fixture.load();
    fixture.host->setPaper(u"DC03"_s);
    for (const bool before : {true, false}) {
        fixture.setOn(shown, before);
        fixture.box(shown)->setEnabled(false);
        fixture.panel->select(shown, choiceAt(fixture, shown, before ? 0 : 1));
        fixture.panel->updateUIItem(factsOf(shown).itemType);
        QCOMPARE(fixture.isOn(shown), before == kept);
    }
}

void RefreshTest::countIsShownInFieldAndStepper_data()
{
    QTest::addColumn<QByteArray>("keyword");
    QTest::addColumn<int>("stepper");
    QTest::newRow("1") << QByteArray("1") << 1;
    QTest::newRow("42") << QByteArray("42") << 42;
    QTest::newRow("OFF") << QByteArray("OFF") << 0;
    QTest::newRow("12x") << QByteArray("12x") << 12;
    QTest::newRow("x12") << QByteArray("x12") << 0;
}

void RefreshTest::countIsShownInFieldAndStepper()
{
    QFETCH(QByteArray, keyword);
    QFETCH(int, stepper);
    PanelFixture fixture(printerWith(cutEvery, {"90", keyword}, "90"));
    fixture.load();
    fixture.setCount(u"before"_s);
    fixture.panel->mCutEveryStpr->setIntValue(77);
    PanelFixture other(printerWith(cutEvery, {"90", keyword}, "90"));
    other.build();
    fixture.panel->select(cutEvery, choiceAt(other, cutEvery, 1));
    fixture.panel->updateUIItem(0x100);
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), u"before"_s);
    QCOMPARE(fixture.panel->mCutEveryStpr->intValue(), 77);

    fixture.panel->select(cutEvery, choiceAt(fixture, cutEvery, 1));
    fixture.panel->updateUIItem(0x100);
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), QString::fromLatin1(keyword));
    QCOMPARE(fixture.panel->mCutEveryStpr->intValue(), stepper);
}

void RefreshTest::cutEveryBoxShowsAutoCut()
{
    PanelFixture other;
    other.build();
    PanelFixture fixture;
    fixture.load();
    // Whether or not the count's selection is one of the option's own.
    for (const PDEChoice *count : {choiceAt(fixture, cutEvery, 4), choiceAt(other, cutEvery, 4)}) {
        fixture.panel->select(cutEvery, count);
        for (const int index : {1, 0}) {
            fixture.panel->mAutoCut_CutEvery_Selection = choiceAt(fixture, autoCut, index);
            fixture.setOn(cutEvery, index == 0);
            fixture.panel->updateUIItem(0x100);
            QCOMPARE(fixture.isOn(cutEvery), index == 1);
        }
    }
    for (const PDEChoice *none :
         {choiceAt(other, autoCut, 1), static_cast<const PDEChoice *>(nullptr)}) {
        fixture.panel->mAutoCut_CutEvery_Selection = none;
        fixture.panel->updateUIItem(0x100);
        QVERIFY(!fixture.isOn(cutEvery));
    }
    QVERIFY(!fixture.isOn(autoCut));
}

void RefreshTest::cutEveryNeedsItsOwnSelection()
{
    PanelFixture fixture;
    fixture.load();
    fixture.setCount(u"before"_s);
    fixture.panel->mAutoCut_CutEvery_Selection = choiceAt(fixture, autoCut, 1);
    fixture.panel->updateUIItem(0x100);
    QVERIFY(!fixture.isOn(cutEvery));
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), u"before"_s);
}

void RefreshTest::changedCountShowsAutoCutInTheCutEveryBox()
{
    PanelFixture fixture;
    fixture.show();
    // The box starts on for the count 1, while auto cut is off.
    QVERIFY(fixture.isOn(cutEvery));
    fixture.step("stepUp");
    QCOMPARE(fixture.takeTold(), QStringList{u"KvCutLabel=2"_s});
    QVERIFY(!fixture.isOn(cutEvery));
    QVERIFY(!fixture.panel->mCutEveryTxBx->isEnabled());
}

void RefreshTest::unknownItemStillRefreshesMenuRulesAndPreview()
{
    PanelFixture fixture;
    fixture.show();
    for (const quint32 item : {0U, 0x8000U, 0x20000U, 0xFFU, 0xFFF00000U}) {
        fixture.panel->mOptionPopUpButton->selectItemWithTag(4);
        fixture.setOn(cutMark, true);
        fixture.setOn(mirror, true);
        fixture.box(removeBlkSpace)->setEnabled(false);
        const QList<Option> before = fixture.optionsOn();
        PaintWatcher preview(fixture.panel->mOptionView);
        fixture.panel->updateUIItem(item);
        QCOMPARE(fixture.optionsOn(), before);
        QCOMPARE(fixture.selectedTag(), 14);
        QVERIFY(fixture.box(removeBlkSpace)->isEnabled());
        QVERIFY(preview.waitForPaint());
    }
}

void RefreshTest::popUpItemLeavesTheOthersAlone()
{
    PanelFixture fixture;
    fixture.load();
    fixture.panel->mOptionPopUpButton->selectItemWithTag(15);
    for (const Option option : everyOption) {
        fixture.panel->select(option, choiceAt(fixture, option, 1));
    }
    fixture.panel->updateUIItem(0x40000 | 0x200 | 0x400 | 0x1000);
    QCOMPARE(fixture.optionsOn(), QList<Option>({OptionCatalogue::ChainPrint, cutMark}));
}

void RefreshTest::presetOutsideTheTableChangesNoBox_data()
{
    QTest::addColumn<int>("tag");
    for (const int tag : {0, -1, 18, 19, 1000}) {
        QTest::addRow("%d", tag) << tag;
    }
}

void RefreshTest::presetOutsideTheTableChangesNoBox()
{
    QFETCH(int, tag);
    PanelFixture fixture;
    fixture.show();
    fixture.replaceMenu({tag, 1});
    QCOMPARE(fixture.selectedTag(), tag);
    for (const bool on : {true, false}) {
        for (const Option option : everyOption) {
            fixture.setOn(option, on);
        }
        fixture.box(removeBlkSpace)->setEnabled(false);
        PaintWatcher preview(fixture.panel->mOptionView);
        fixture.panel->updateUIItem(0x40000);
        QCOMPARE(fixture.optionsOn(), on ? everyOption : QList<Option>());
        QCOMPARE(fixture.selectedTag(), tag);
        QVERIFY(fixture.box(removeBlkSpace)->isEnabled());
        QVERIFY(preview.waitForPaint());
    }
}

void RefreshTest::emptyMenuChangesNoBox()
{
    PanelFixture fixture;
    fixture.show();
    fixture.replaceMenu({});
    for (const Option option : everyOption) {
        fixture.setOn(option, true);
    }
    fixture.panel->updateUIItem(0x40000);
    fixture.panel->updateUIItem(0);
    QCOMPARE(fixture.optionsOn(), everyOption);
}

void RefreshTest::menuShowsTheBoxesAsTheyHaveBecome()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.host->mark("KvChainPrint", "ON");
    fixture.panel->updateMarkedSelections(factsOf(OptionCatalogue::ChainPrint).itemType);
    fixture.replaceMenu({16, 17});
    fixture.panel->updateUIItem(factsOf(OptionCatalogue::ChainPrint).itemType);
    QCOMPARE(fixture.selectedTag(), 16);
    fixture.host->mark("KvChainPrint", "OFF");
    fixture.panel->updateMarkedSelections(factsOf(OptionCatalogue::ChainPrint).itemType);
    fixture.panel->updateUIItem(factsOf(OptionCatalogue::ChainPrint).itemType);
    QCOMPARE(fixture.selectedTag(), 17);
}

void RefreshTest::presetThatTheMenuLacksIsNotSelected()
{
    PanelFixture fixture;
    fixture.load();
    fixture.replaceMenu({4, 14});
    fixture.setOn(OptionCatalogue::ChainPrint, true);
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 16);
    fixture.panel->updateUIItem(0);
    QCOMPARE(fixture.selectedTag(), 4);
}

void RefreshTest::presetKeepsTheMirrorSelection()
{
    PanelFixture fixture;
    fixture.show();
    fixture.click(mirror);
    const PDEChoice *on = choiceAt(fixture, mirror, 1);
    QCOMPARE(fixture.panel->selection(mirror), on);
    fixture.panel->updateUIItem(0x40000);
    QVERIFY(!fixture.isOn(mirror));
    QCOMPARE(fixture.panel->selection(mirror), on);
    QCOMPARE(fixture.host->marked("KvMirror"), u"ON"_s);
}

void RefreshTest::mirrorPrintingIsOffAfterShowing()
{
    for (const bool labelSeries : {false, true}) {
        PanelFixture fixture({.labelSeries = labelSeries, .defaults = {{mirror, "ON"}}});
        fixture.show();
        QVERIFY(!fixture.isOn(mirror));
        QCOMPARE(fixture.panel->selection(mirror), choiceAt(fixture, mirror, 1));
        fixture.restore();
        QVERIFY(!fixture.isOn(mirror));
        QCOMPARE(fixture.host->marked("KvMirror"), u"ON"_s);
    }
}

KV_TEST(RefreshTest)
#include "tst_refresh.moc"
