// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "StripTable.h"

/// What a preset does to the check boxes, and which one the menu shows of them.
class PresetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void presetSetsTheBoxesOfItsRow_data();
    void presetSetsTheBoxesOfItsRow();
    void refreshSelectsThePresetInTheMenu_data();
    void refreshSelectsThePresetInTheMenu();
};

namespace {
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

KV_TEST(PresetsTest)
#include "tst_presets.moc"
