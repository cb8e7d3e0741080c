#include "PanelFixture.h"

#include <bitset>

/// The table of presets in both directions, for every combination of check boxes.
class PresetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void presetSetsTheBoxesOfItsRow_data();
    void presetSetsTheBoxesOfItsRow();
    void boxesGiveTheirPreset_data();
    void boxesGiveTheirPreset();
    void hiddenBoxCountsAsOff_data();
    void hiddenBoxCountsAsOff();
    void missingBoxesCountAsOff_data();
    void missingBoxesCountAsOff();
    void refreshSelectsThePresetInTheMenu_data();
    void refreshSelectsThePresetInTheMenu();
    void specialTapeOverridesTheOthers();
    void halfCutOnLabelPaperOverridesTheOthers();
};

namespace {
/// One bit for each option in the catalogue's order.
using Boxes = std::bitset<9>;

/// What each preset does in the catalogue's order: every, end, mirror, auto, half, chain, special,
/// remove, mark; '1' on, '0' off, '-' left as it is.
constexpr const char *rowsOfTags[] = {
    "000------", "010------", "100------", "110------", // 1 to 4
    "0-00000--", "0-00010--", "0-00100--", "0-00110--", // 5 to 8
    "1-01000--", "1-01010--", "1-01100--", "1-01110--", // 9 to 12
    "--0---1--",                                        // 13
    "--0--0--1", "--0--1--1", "--0--1--0", "--0--0--0", // 14 to 17
};

const QList<int> allTags = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17};

enum Model {
    LabelPrinter,
    TapePrinter,
    CutMarkPrinter,
};

/// The preset that describes the boxes that are shown and on.
int expectedTag(Model model, bool isFLPaper, const Boxes &on)
{
    constexpr int byEveryAndEnd[2][2] = {{1, 2}, {3, 4}};
    constexpr int byCutAndHalf[2][2] = {{5, 1}, {9, 1}};
    constexpr int byMarkAndChain[2][2] = {{17, 16}, {14, 15}};
    constexpr int byCutHalfAndChain[2][2][2] = {{{5, 6}, {7, 8}}, {{9, 10}, {11, 12}}};
    const bool special = on[OptionCatalogue::SpecialTape];
    const bool every = on[OptionCatalogue::CutEvery] && !special;
    const bool half = on[OptionCatalogue::HalfCut] && !special;
    const bool chain = on[OptionCatalogue::ChainPrint] && !special;
    const bool cut = every || (on[OptionCatalogue::AutoCut] && !special);
    if (model == LabelPrinter) {
        return byEveryAndEnd[every][on[OptionCatalogue::CutAtEnd]];
    }
    if (isFLPaper) {
        return byCutAndHalf[cut][half];
    }
    if (model == CutMarkPrinter) {
        return byMarkAndChain[on[OptionCatalogue::CutMark]][chain];
    }
    return special ? 13 : byCutHalfAndChain[cut][half][chain];
}

TestPrinter printerOf(Model model)
{
    return {.options =
                model == TapePrinter ? everyOptionBut(OptionCatalogue::CutMark) : everyOption,
            .labelSeries = model == LabelPrinter};
}

void setBoxes(const PanelFixture &fixture, const Boxes &on)
{
    for (const Option option : everyOption) {
        fixture.setOn(option, on[option]);
    }
}

Boxes boxes(const PanelFixture &fixture)
{
    Boxes on;
    for (const Option option : everyOption) {
        on[option] = fixture.isOn(option);
    }
    return on;
}

void addModelRows()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<QString>("paper");
    QTest::addColumn<bool>("isFLPaper");
    const std::pair<const char *, Model> models[] = {{"label printer", LabelPrinter},
                                                     {"tape printer", TapePrinter},
                                                     {"printer with cut marks", CutMarkPrinter}};
    for (const auto &[name, model] : models) {
        for (const char *paper : {"62x29", "FL30", "FL", "fl30", "DC03", "HS058", ""}) {
            QTest::addRow("%s, paper \"%s\"", name, paper)
                << int(model) << QString::fromLatin1(paper) << QByteArray(paper).startsWith("FL");
        }
    }
}
} // namespace

void PresetsTest::presetSetsTheBoxesOfItsRow_data()
{
    QTest::addColumn<int>("tag");
    for (const int tag : allTags) {
        QTest::addRow("preset %d", tag) << tag;
    }
}

void PresetsTest::presetSetsTheBoxesOfItsRow()
{
    QFETCH(int, tag);
    PanelFixture fixture;
    fixture.load();
    fixture.replaceMenu(allTags);
    const char *row = rowsOfTags[tag - 1];
    for (unsigned long long before = 0; before < everyCombination; ++before) {
        setBoxes(fixture, before);
        fixture.panel->mOptionPopUpButton->selectItemWithTag(tag);
        fixture.panel->updateUIItem(0x40000);
        Boxes after = before;
        for (const Option option : everyOption) {
            if (row[option] != '-') {
                after[option] = row[option] == '1';
            }
        }
        QCOMPARE(boxes(fixture).to_string(), after.to_string());
        QCOMPARE(fixture.selectedTag(), tag);
    }
    QCOMPARE(fixture.takeTold(), QStringList());
}

void PresetsTest::boxesGiveTheirPreset_data()
{
    addModelRows();
}

void PresetsTest::boxesGiveTheirPreset()
{
    QFETCH(int, model);
    QFETCH(QString, paper);
    QFETCH(bool, isFLPaper);
    PanelFixture fixture(printerOf(Model(model)));
    fixture.load();
    fixture.host->setPaper(paper);
    for (unsigned long long on = 0; on < everyCombination; ++on) {
        setBoxes(fixture, on);
        QCOMPARE(fixture.panel->targetPopUpButtonTag(), expectedTag(Model(model), isFLPaper, on));
    }
}

void PresetsTest::hiddenBoxCountsAsOff_data()
{
    addModelRows();
}

void PresetsTest::hiddenBoxCountsAsOff()
{
    QFETCH(int, model);
    QFETCH(QString, paper);
    QFETCH(bool, isFLPaper);
    PanelFixture fixture(printerOf(Model(model)));
    fixture.load();
    fixture.host->setPaper(paper);
    for (const Option hidden : everyOption) {
        const bool wasHidden = fixture.box(hidden)->isHidden();
        fixture.box(hidden)->hide();
        const bool losesCutMark = model == CutMarkPrinter && hidden == OptionCatalogue::CutMark;
        const Model shown = losesCutMark ? TapePrinter : Model(model);
        for (unsigned long long on = 0; on < everyCombination; ++on) {
            setBoxes(fixture, on);
            Boxes counted = on;
            counted[hidden] = false;
            QCOMPARE(fixture.panel->targetPopUpButtonTag(), expectedTag(shown, isFLPaper, counted));
        }
        fixture.box(hidden)->setHidden(wasHidden);
    }
}

void PresetsTest::missingBoxesCountAsOff_data()
{
    QTest::addColumn<bool>("labelSeries");
    QTest::addColumn<int>("tag");
    QTest::newRow("label printer") << true << 1;
    QTest::newRow("tape printer") << false << 5;
}

void PresetsTest::missingBoxesCountAsOff()
{
    QFETCH(bool, labelSeries);
    QFETCH(int, tag);
    PanelFixture fixture({.labelSeries = labelSeries});
    fixture.build();
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), tag);
}

void PresetsTest::refreshSelectsThePresetInTheMenu_data()
{
    addModelRows();
}

void PresetsTest::refreshSelectsThePresetInTheMenu()
{
    QFETCH(int, model);
    QFETCH(QString, paper);
    QFETCH(bool, isFLPaper);
    PanelFixture fixture(printerOf(Model(model)));
    fixture.load();
    fixture.replaceMenu(allTags);
    fixture.host->setPaper(paper);
    for (unsigned long long on = 0; on < everyCombination; ++on) {
        setBoxes(fixture, on);
        fixture.panel->updateUIItem(0);
        QCOMPARE(fixture.selectedTag(), expectedTag(Model(model), isFLPaper, on));
        QCOMPARE(boxes(fixture).to_string(), Boxes(on).to_string());
    }
}

void PresetsTest::specialTapeOverridesTheOthers()
{
    PanelFixture fixture(printerOf(TapePrinter));
    fixture.load();
    setBoxes(fixture, everyCombination - 1);
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 13);
    fixture.setOn(OptionCatalogue::SpecialTape, false);
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 12);
}

void PresetsTest::halfCutOnLabelPaperOverridesTheOthers()
{
    PanelFixture fixture(printerOf(TapePrinter));
    fixture.load();
    fixture.host->setPaper(u"FL30"_s);
    setBoxes(fixture, everyCombination - 1);
    fixture.setOn(OptionCatalogue::SpecialTape, false);
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 1);
    fixture.setOn(OptionCatalogue::HalfCut, false);
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 9);
    fixture.setOn(OptionCatalogue::AutoCut, false);
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 9);
    fixture.setOn(OptionCatalogue::CutEvery, false);
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 5);
}

KV_TEST(PresetsTest)
#include "tst_presets.moc"
