// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "support/BundleCopy.h"

#include "toolkit/ViewGeometry.h"

/// Which rows the panel shows, where, and which presets its menu offers.
class LayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsStandOnTopOfEachOther_data();
    void rowsStandOnTopOfEachOther();
    void rowsKeepTheirColumn();
    void hiddenCutEveryHidesItsFieldLine();
    void menuOffersThePresetsOfThePrinter_data();
    void menuOffersThePresetsOfThePrinter();
    void presetWithEverythingOnGoesOnlyWithCutEvery_data();
    void presetWithEverythingOnGoesOnlyWithCutEvery();
    void menuShowsPicturesAndNamesInsteadOfIdentifiers();
    void menuStartsWithItsFirstPreset();
    void lowViewIsMadeHighEnough_data();
    void lowViewIsMadeHighEnough();
    void dialogThatCannotResizeKeepsTheView();
    void previewTakesThePlaceholdersPlace_data();
    void previewTakesThePlaceholdersPlace();
    void previewKnowsItsPrinterAndCheckBoxes_data();
    void previewKnowsItsPrinterAndCheckBoxes();
    void previewWithoutPlaceholderHasNoPlace();
};

namespace {
constexpr int hidden = -1;
/// The height of the view in the nib.
constexpr int nibHeight = 292;

/// The rows from top to bottom.
const QList<Option> rowsFromTop = {
    OptionCatalogue::CutMark,    OptionCatalogue::CutEvery, OptionCatalogue::AutoCut,
    OptionCatalogue::CutAtEnd,   OptionCatalogue::HalfCut,  OptionCatalogue::SpecialTape,
    OptionCatalogue::ChainPrint, OptionCatalogue::Mirror,   OptionCatalogue::RemoveBlkSpace,
};

/// Lower edge of a control over the lower edge of a view as high as the nib's.
int lowerEdge(const QWidget *control)
{
    return nibHeight - control->y() - control->height();
}

TestPrinter without(Option option, bool labelSeries = false)
{
    return {.options = everyOptionBut(option), .labelSeries = labelSeries};
}
} // namespace

void LayoutTest::rowsStandOnTopOfEachOther_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<QList<int>>("origins");
    QTest::addColumn<int>("height");
    // mark, every, auto, end, half, special, chain, mirror, remove
    QTest::newRow("all") << TestPrinter() << QList<int>{254, 228, 176, 150, 124, 98, 72, 46, 20}
                         << 292;
    QTest::newRow("no cut mark") << without(OptionCatalogue::CutMark)
                                 << QList<int>{hidden, 254, 202, 176, 150, 124, 98, 72, 46} << 266;
    QTest::newRow("no cut every") << without(OptionCatalogue::CutEvery)
                                  << QList<int>{254, hidden, 228, 202, 176, 150, 124, 98, 72}
                                  << 240;
    QTest::newRow("no auto cut") << without(OptionCatalogue::AutoCut)
                                 << QList<int>{254, 228, hidden, 176, 150, 124, 98, 72, 46} << 266;
    QTest::newRow("auto cut without a box of its own")
        << TestPrinter{.separateAutoCut = false}
        << QList<int>{254, 228, hidden, 176, 150, 124, 98, 72, 46} << 266;
    QTest::newRow("no cut at end")
        << without(OptionCatalogue::CutAtEnd)
        << QList<int>{254, 228, 176, hidden, 150, 124, 98, 72, 46} << 266;
    QTest::newRow("no half cut") << without(OptionCatalogue::HalfCut)
                                 << QList<int>{254, 228, 176, 150, hidden, 124, 98, 72, 46} << 266;
    QTest::newRow("no special tape")
        << without(OptionCatalogue::SpecialTape)
        << QList<int>{254, 228, 176, 150, 124, hidden, 98, 72, 46} << 266;
    QTest::newRow("no chain printing")
        << without(OptionCatalogue::ChainPrint)
        << QList<int>{254, 228, 176, 150, 124, 98, hidden, 72, 46} << 266;
    QTest::newRow("no mirror printing")
        << without(OptionCatalogue::Mirror)
        << QList<int>{254, 228, 176, 150, 124, 98, 72, hidden, 46} << 266;
    QTest::newRow("no remove blank space")
        << without(OptionCatalogue::RemoveBlkSpace)
        << QList<int>{254, 228, 176, 150, 124, 98, 72, 46, hidden} << 266;
    QTest::newRow("label printer, all")
        << TestPrinter{.labelSeries = true} << QList<int>{254, 228, 176, 150, 124, 98, 72, 46, 20}
        << 292;
    QTest::newRow("label printer with its three options")
        << TestPrinter{.options = {OptionCatalogue::CutEvery, OptionCatalogue::CutAtEnd,
                                   OptionCatalogue::Mirror},
                       .labelSeries = true}
        << QList<int>{hidden, 254, hidden, 202, hidden, hidden, hidden, 176, hidden} << 150;
    QTest::newRow("none") << TestPrinter{.options = {}} << QVector<int>(9, hidden).toList() << 150;
}

void LayoutTest::rowsStandOnTopOfEachOther()
{
    QFETCH(TestPrinter, printer);
    QFETCH(QList<int>, origins);
    QFETCH(int, height);
    PanelFixture fixture(printer);
    fixture.load();
    QList<int> found;
    for (const Option option : rowsFromTop) {
        const CheckBox *box = fixture.box(option);
        found.append(box->isHidden() ? hidden : lowerEdge(box));
    }
    QCOMPARE(found, origins);
    QCOMPARE(fixture.panel->kPDEView->size(), QSize(480, height));

    const bool hasCutEvery = origins.at(1) != hidden;
    const int fieldLine = origins.at(1) - 26;
    const QList<std::pair<QWidget *, int>> fields = {{fixture.panel->mCutEveryTxBx, -4},
                                                     {fixture.panel->mCutEveryStpr, -5},
                                                     {fixture.panel->mCutEveryStr, 2}};
    for (const auto &[control, offset] : fields) {
        QCOMPARE(control->isHidden(), !hasCutEvery);
        if (hasCutEvery) {
            QCOMPARE(lowerEdge(control), fieldLine + offset);
        }
    }
}

void LayoutTest::rowsKeepTheirColumn()
{
    PanelFixture fixture;
    fixture.load();
    for (const Option option : everyOption) {
        QCOMPARE(fixture.box(option)->x(), 20);
        QCOMPARE(fixture.box(option)->size(), QSize(190, 22));
    }
    QCOMPARE(fixture.panel->mCutEveryTxBx->x(), 44);
    QCOMPARE(fixture.panel->mCutEveryStpr->x(), 102);
    QCOMPARE(fixture.panel->mCutEveryStr->x(), 128);
}

void LayoutTest::hiddenCutEveryHidesItsFieldLine()
{
    PanelFixture fixture(without(OptionCatalogue::CutEvery));
    fixture.show();
    QVERIFY(!fixture.box(OptionCatalogue::CutEvery)->isVisible());
    QVERIFY(!fixture.panel->mCutEveryTxBx->isVisible());
    QVERIFY(!fixture.panel->mCutEveryStpr->isVisible());
    QVERIFY(!fixture.panel->mCutEveryStr->isVisible());
    QVERIFY(fixture.box(OptionCatalogue::CutMark)->isVisible());
}

void LayoutTest::menuOffersThePresetsOfThePrinter_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<QList<int>>("tags");
    using Tags = QList<int>;
    const auto tape = [](const char *name, const TestPrinter &printer, const Tags &tags) {
        QTest::addRow("tape printer, %s", name) << printer << tags;
    };
    tape("all", {}, {4, 7, 9, 11, 13, 14, 15, 16, 17});
    tape("no cut mark", without(OptionCatalogue::CutMark), {4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
    tape("no cut every", without(OptionCatalogue::CutEvery), {7, 9, 11, 13, 14, 15, 16, 17});
    tape("no auto cut", without(OptionCatalogue::AutoCut), {4, 7, 13, 14, 15, 16, 17});
    tape("auto cut without a box of its own", {.separateAutoCut = false},
         {4, 7, 13, 14, 15, 16, 17});
    tape("no cut at end", without(OptionCatalogue::CutAtEnd), {4, 7, 9, 11, 13, 14, 15, 16, 17});
    tape("no half cut", without(OptionCatalogue::HalfCut), {4, 9, 13, 14, 15, 16, 17});
    tape("no special tape", without(OptionCatalogue::SpecialTape), {4, 7, 9, 11, 14, 15, 16, 17});
    tape("no chain printing", without(OptionCatalogue::ChainPrint), {4, 7, 9, 11, 13, 14, 17});
    tape("no mirror printing", without(OptionCatalogue::Mirror), {4, 7, 9, 11, 13, 14, 15, 16, 17});
    tape("no remove blank space", without(OptionCatalogue::RemoveBlkSpace),
         {4, 7, 9, 11, 13, 14, 15, 16, 17});
    tape("none", {.options = {}}, {5});

    const auto label = [](const char *name, TestPrinter printer, const Tags &tags) {
        printer.labelSeries = true;
        QTest::addRow("label printer, %s", name) << printer << tags;
    };
    label("all", {}, {1, 2, 3, 4, 7, 9, 11, 13, 14, 15, 16, 17});
    label("no cut mark", without(OptionCatalogue::CutMark),
          {1, 2, 3, 4, 6, 7, 8, 9, 10, 11, 12, 13});
    label("no cut every", without(OptionCatalogue::CutEvery), {1, 2, 7, 9, 11, 13, 14, 15, 16, 17});
    label("no auto cut", without(OptionCatalogue::AutoCut), {1, 2, 3, 4, 7, 13, 14, 15, 16, 17});
    label("auto cut without a box of its own", {.separateAutoCut = false},
          {1, 2, 3, 4, 7, 13, 14, 15, 16, 17});
    label("no cut at end", without(OptionCatalogue::CutAtEnd),
          {1, 3, 4, 7, 9, 11, 13, 14, 15, 16, 17});
    label("no half cut", without(OptionCatalogue::HalfCut), {1, 2, 3, 4, 9, 13, 14, 15, 16, 17});
    label("no special tape", without(OptionCatalogue::SpecialTape),
          {1, 2, 3, 4, 7, 9, 11, 14, 15, 16, 17});
    label("no chain printing", without(OptionCatalogue::ChainPrint),
          {1, 2, 3, 4, 7, 9, 11, 13, 14, 17});
    label("no mirror printing", without(OptionCatalogue::Mirror),
          {1, 2, 3, 4, 7, 9, 11, 13, 14, 15, 16, 17});
    label("no remove blank space", without(OptionCatalogue::RemoveBlkSpace),
          {1, 2, 3, 4, 7, 9, 11, 13, 14, 15, 16, 17});
    label("its three options",
          {.options = {OptionCatalogue::CutEvery, OptionCatalogue::CutAtEnd,
                       OptionCatalogue::Mirror}},
          {1, 2, 3, 4});
    label("none", {.options = {}}, {1});
}

void LayoutTest::menuOffersThePresetsOfThePrinter()
{
    QFETCH(TestPrinter, printer);
    QFETCH(QList<int>, tags);
    PanelFixture fixture(printer);
    fixture.load();
    QCOMPARE(fixture.menuTags(), tags);
}

void LayoutTest::presetWithEverythingOnGoesOnlyWithCutEvery_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<bool>("offered");
    QTest::newRow("neither cut every nor auto cut")
        << TestPrinter{.options = {OptionCatalogue::HalfCut, OptionCatalogue::ChainPrint}} << true;
    QTest::newRow("no auto cut") << without(OptionCatalogue::AutoCut) << false;
    QTest::newRow("auto cut without a box of its own")
        << TestPrinter{.separateAutoCut = false} << false;
    QTest::newRow("auto cut with a box of its own") << TestPrinter() << true;
}

void LayoutTest::presetWithEverythingOnGoesOnlyWithCutEvery()
{
    QFETCH(TestPrinter, printer);
    QFETCH(bool, offered);
    BundleCopy copy;
    QVERIFY(copy.replaceInNib(u">AHCMOffOffOffOff<"_s, u">AHCMOnOnOnOn<"_s));
    QVERIFY(copy.replaceInNib(u"<string>5</string>"_s, u"<string>50</string>"_s));
    PanelFixture fixture(printer, copy.open());
    fixture.load();
    QCOMPARE(fixture.menuTags().contains(50), offered);
}

void LayoutTest::menuShowsPicturesAndNamesInsteadOfIdentifiers()
{
    PanelFixture fixture;
    fixture.load();
    const PopUpButton *menu = fixture.panel->mOptionPopUpButton;
    const QMap<int, QString> names = {{4, u"Cut between labels and at end"_s},
                                      {7, u"Half cut"_s},
                                      {13, u"Special tape"_s},
                                      {17, u"No cut marks"_s}};
    QCOMPARE(menu->count(), 9);
    for (int i = 0; i < menu->count(); ++i) {
        QCOMPARE(menu->itemText(i), QString());
        QVERIFY(!menu->itemIcon(i).isNull());
        QVERIFY(!menu->itemIcon(i).pixmap(QSize(200, 20)).isNull());
        const QString name = menu->itemData(i, Qt::ToolTipRole).toString();
        QVERIFY(!name.isEmpty());
        QCOMPARE(menu->itemData(i, Qt::AccessibleTextRole).toString(), name);
        QCOMPARE(name, names.value(menu->tagAt(i), name));
    }
}

void LayoutTest::menuStartsWithItsFirstPreset()
{
    PanelFixture fixture;
    fixture.load();
    QCOMPARE(fixture.panel->mOptionPopUpButton->currentIndex(), 0);
    QCOMPARE(fixture.selectedTag(), 4);
}

void LayoutTest::lowViewIsMadeHighEnough_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<int>("height");
    QTest::newRow("151, nothing removed") << 151 << TestPrinter() << 151;
    QTest::newRow("150, nothing removed") << 150 << TestPrinter() << 150;
    QTest::newRow("149, nothing removed") << 149 << TestPrinter() << 150;
    QTest::newRow("0, nothing removed") << 0 << TestPrinter() << 150;
    QTest::newRow("176 less one row") << 176 << without(OptionCatalogue::Mirror) << 150;
    QTest::newRow("177 less one row") << 177 << without(OptionCatalogue::Mirror) << 151;
    QTest::newRow("201 less cut every") << 201 << without(OptionCatalogue::CutEvery) << 150;
    QTest::newRow("410 less everything") << 410 << TestPrinter{.options = {}} << 150;
    QTest::newRow("411 less everything") << 411 << TestPrinter{.options = {}} << 151;
}

void LayoutTest::lowViewIsMadeHighEnough()
{
    QFETCH(int, before);
    QFETCH(TestPrinter, printer);
    QFETCH(int, height);
    BundleCopy copy;
    QVERIFY(copy.replaceInNib(u"<height>292</height>"_s, u"<height>%1</height>"_s.arg(before)));
    PanelFixture fixture(printer, copy.open());
    fixture.load();
    QCOMPARE(fixture.panel->kPDEView->height(), height);
    QCOMPARE(frameOrigin(fixture.panel->mOptionView).y(), height - 130.0);
}

void LayoutTest::dialogThatCannotResizeKeepsTheView()
{
    PanelFixture fixture(without(OptionCatalogue::CutMark));
    fixture.host->tellsResize = false;
    fixture.load();
    QCOMPARE(fixture.panel->kPDEView->height(), nibHeight);
    QCOMPARE(fixture.host->resizes, 0);
    QCOMPARE(lowerEdge(fixture.box(OptionCatalogue::CutEvery)), 254);
    QCOMPARE(frameOrigin(fixture.panel->mOptionView), QPointF(220.0, 266.0 - 130.0));
}

void LayoutTest::previewTakesThePlaceholdersPlace_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<double>("height");
    QTest::newRow("all") << TestPrinter() << 292.0;
    QTest::newRow("no cut mark") << without(OptionCatalogue::CutMark) << 266.0;
    QTest::newRow("none") << TestPrinter{.options = {}} << 150.0;
}

void LayoutTest::previewTakesThePlaceholdersPlace()
{
    QFETCH(TestPrinter, printer);
    QFETCH(double, height);
    PanelFixture fixture(printer);
    fixture.show();
    const OptionView13_v400_ *preview = fixture.panel->mOptionView;
    QCOMPARE(preview->parentWidget(), fixture.panel->kPDEView.data());
    QVERIFY(preview->isVisible());
    QCOMPARE(preview->size(), QSize(240, 92));
    QCOMPARE(frameOrigin(preview), QPointF(220.0, height - 130.0));
    QVERIFY(!fixture.panel->mOptionDummyView);
    QVERIFY(!fixture.panel->kPDEView->findChild<QWidget *>(u"mOptionDummyView"_s));
}

void LayoutTest::previewKnowsItsPrinterAndCheckBoxes_data()
{
    QTest::addColumn<bool>("labelSeries");
    QTest::newRow("label printer") << true;
    QTest::newRow("tape printer") << false;
}

void LayoutTest::previewKnowsItsPrinterAndCheckBoxes()
{
    QFETCH(bool, labelSeries);
    PanelFixture fixture({.labelSeries = labelSeries});
    fixture.load();
    const OptionView13_v400_ *preview = fixture.panel->mOptionView;
    QCOMPARE(preview->isRV(), labelSeries);
    const QList<QAbstractButton *> boxes = {
        preview->cutEveryChkBx(),    preview->cutAndEndChkBx(),     preview->mirrorPrintChkBx(),
        preview->autoCutChkBx(),     preview->halfCutChkBx(),       preview->chainPrintChkBx(),
        preview->specialTapeChkBx(), preview->removeBlkSpaceChkBx()};
    for (int i = 0; i < boxes.size(); ++i) {
        QCOMPARE(boxes.at(i), fixture.box(everyOption.at(i)));
    }
}

void LayoutTest::previewWithoutPlaceholderHasNoPlace()
{
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(u"mOptionDummyView"_s));
    PanelFixture fixture(TestPrinter(), copy.open());
    fixture.show();
    const OptionView13_v400_ *preview = fixture.panel->mOptionView;
    QVERIFY(preview);
    QVERIFY(!preview->parentWidget());
    QVERIFY(preview->size().isEmpty());
    QVERIFY(!preview->isVisible());
}

KV_TEST(LayoutTest)
#include "tst_layout.moc"
