// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "StripTable.h"
#include "cutoption/Preset.h"
#include "preview/Strip.h"

#include <QCheckBox>

#include <array>

/// The strip that the check boxes ask for, in every combination, and the preset that describes it.
class StripTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxesMakeTheStrip();
    void deletedAndMissingBoxesCountAsOff();
    void stripHasItsPreset_data();
    void stripHasItsPreset();
};

namespace {
Strip stripOfBoxes(const Boxes &on)
{
    const bool special = on[OptionCatalogue::SpecialTape];
    return {.isCutEvery = on[OptionCatalogue::CutEvery] && !special,
            .isCutAtEnd = on[OptionCatalogue::CutAtEnd],
            .isMirrored = on[OptionCatalogue::Mirror],
            .isAutoCut = on[OptionCatalogue::AutoCut] && !special,
            .isHalfCut = on[OptionCatalogue::HalfCut] && !special,
            .isChained = on[OptionCatalogue::ChainPrint] && !special,
            .isSpecialTape = special,
            .hasNoBlankSpace = on[OptionCatalogue::RemoveBlkSpace],
            .hasCutMarks = on[OptionCatalogue::CutMark]};
}

/// One bit for each field, in the catalogue's order.
Boxes fieldsOf(const Strip &strip)
{
    Boxes fields;
    std::size_t i = 0;
    for (const bool field :
         {strip.isCutEvery, strip.isCutAtEnd, strip.isMirrored, strip.isAutoCut, strip.isHalfCut,
          strip.isChained, strip.isSpecialTape, strip.hasNoBlankSpace, strip.hasCutMarks}) {
        fields[i++] = field;
    }
    return fields;
}

/// Nine check boxes, shown.
struct NineBoxes
{
    NineBoxes()
    {
        for (auto &box : boxes) {
            box = new QCheckBox(&panel);
            box->show();
        }
    }
    void setOn(const Boxes &on)
    {
        for (std::size_t i = 0; i < boxes.size(); ++i) {
            boxes[i]->setChecked(on[i]);
        }
    }
    Strip strip() const { return Strip::of(stripBoxes()); }
    StripBoxes stripBoxes() const
    {
        return {boxes[0], boxes[1], boxes[2], boxes[3], boxes[4],
                boxes[5], boxes[6], boxes[7], boxes[8]};
    }

    QWidget panel;
    std::array<QPointer<QAbstractButton>, 9> boxes;
};
} // namespace

void StripTest::boxesMakeTheStrip()
{
    NineBoxes nine;
    for (unsigned long long on = 0; on < everyCombination; ++on) {
        nine.setOn(on);
        QCOMPARE(fieldsOf(nine.strip()).to_string(), fieldsOf(stripOfBoxes(on)).to_string());
        for (std::size_t hidden = 0; hidden < nine.boxes.size(); ++hidden) {
            nine.boxes[hidden]->hide();
            const Boxes shown = Boxes(on).reset(hidden);
            QCOMPARE(fieldsOf(nine.strip()).to_string(), fieldsOf(stripOfBoxes(shown)).to_string());
            nine.boxes[hidden]->show();
        }
    }
}

void StripTest::deletedAndMissingBoxesCountAsOff()
{
    NineBoxes nine;
    nine.setOn(everyCombination - 1);
    const StripBoxes boxes = nine.stripBoxes();
    delete nine.boxes[OptionCatalogue::SpecialTape];
    Boxes left = Boxes(everyCombination - 1).reset(OptionCatalogue::SpecialTape);
    QCOMPARE(fieldsOf(Strip::of(boxes)).to_string(), left.to_string());
    delete nine.boxes[OptionCatalogue::Mirror];
    left.reset(OptionCatalogue::Mirror);
    QCOMPARE(fieldsOf(Strip::of(boxes)).to_string(), left.to_string());
    QVERIFY(fieldsOf(Strip::of({})).none());
}

void StripTest::stripHasItsPreset_data()
{
    QTest::addColumn<int>("model");
    QTest::addColumn<bool>("hasFlagPaper");
    for (const Model model : {LabelPrinter, TapePrinter, CutMarkPrinter}) {
        for (const bool hasFlagPaper : {false, true}) {
            QTest::addRow("model %d, %s paper", int(model), hasFlagPaper ? "flag" : "other")
                << int(model) << hasFlagPaper;
        }
    }
}

void StripTest::stripHasItsPreset()
{
    QFETCH(int, model);
    QFETCH(bool, hasFlagPaper);
    for (unsigned long long on = 0; on < everyCombination; ++on) {
        QCOMPARE(Preset::tagOf(stripOfBoxes(on), {.isLabelSeries = model == LabelPrinter,
                                                  .hasFlagPaper = hasFlagPaper,
                                                  .showsCutMark = model == CutMarkPrinter}),
                 expectedTag(Model(model), hasFlagPaper, on));
    }
}

KV_TEST(StripTest)
#include "tst_strip.moc"
