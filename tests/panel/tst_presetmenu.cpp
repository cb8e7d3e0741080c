// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "toolkit/NibLoader.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QWheelEvent>

/// The menu of ready-made combinations as the user opens it.
class PresetMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void nibNamesEveryPreset();
    void presetsAreOfferedByPaper_data();
    void presetsAreOfferedByPaper();
    void openedListGreysWhatThePaperForbids();
    void openedListOffersAllOnOtherPaper();
    void greyedPresetCannotBeClicked();
    void clickOnAGreyedPresetChoosesNoOther();
    void clickOnAGreyedPresetDoesNotChooseTheOneBefore();
    void pickedPresetSetsTheBoxes_data();
    void pickedPresetSetsTheBoxes();
    void pickedPresetIsToldWhenSaved();
    void pickingAnyPresetTurnsMirrorPrintingOff();
    void pickingTheSelectedPresetAgainTurnsMirrorPrintingOff();
    void keyboardSkipsGreyedPresets();
    void keyboardSkipsGreyedPresetsInTheOpenedList();
    void wheelSkipsGreyedPresets();
    void onlyThePopUpItemIsRefreshed();
};

namespace {
PopUpButton *menuOf(const PanelFixture &fixture)
{
    return fixture.panel->mOptionPopUpButton;
}

int indexOfTag(const PanelFixture &fixture, int tag)
{
    return int(fixture.menuTags().indexOf(tag));
}

/// The tags of the items that can be chosen in the opened list.
QList<int> choosableTags(const PanelFixture &fixture)
{
    const QAbstractItemModel *items = menuOf(fixture)->view()->model();
    QList<int> tags;
    for (int i = 0; i < items->rowCount(); ++i) {
        if (items->flags(items->index(i, 0)).testFlag(Qt::ItemIsEnabled)) {
            tags.append(fixture.menuTags().at(i));
        }
    }
    return tags;
}

/// The part of an item that is to be seen in the opened list.
QPoint centerOf(const PanelFixture &fixture, int tag)
{
    QAbstractItemView *list = menuOf(fixture)->view();
    const QModelIndex item = list->model()->index(indexOfTag(fixture, tag), 0);
    list->scrollTo(item);
    return list->visualRect(item).intersected(list->viewport()->rect()).center();
}

void openList(const PanelFixture &fixture)
{
    menuOf(fixture)->showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(menuOf(fixture)->view()->window()));
}

/// Opens the list and clicks the item with the tag.
void pick(const PanelFixture &fixture, int tag)
{
    openList(fixture);
    QVERIFY(fixture.menuTags().contains(tag));
    QTest::mouseClick(menuOf(fixture)->view()->viewport(), Qt::LeftButton, {},
                      centerOf(fixture, tag));
}

/// Moves the mouse over the item with the tag in the opened list.
void hover(const PanelFixture &fixture, int tag)
{
    QWidget *viewport = menuOf(fixture)->view()->viewport();
    const QPointF at = centerOf(fixture, tag);
    QMouseEvent event(QEvent::MouseMove, at, viewport->mapToGlobal(at.toPoint()), Qt::NoButton, {},
                      {});
    QCoreApplication::sendEvent(viewport, &event);
}

void turnWheel(QWidget *widget, int notches)
{
    const QPoint at = widget->rect().center();
    QWheelEvent event(at, widget->mapToGlobal(at), QPoint(), QPoint(0, 120 * notches), {}, {},
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}
} // namespace

void PresetMenuTest::initTestCase()
{
    // A list that has just been opened takes no click for that long.
    QApplication::setDoubleClickInterval(0);
}

void PresetMenuTest::nibNamesEveryPreset()
{
    const auto nib = NibLoader::load(testBundle()->pathForResource(u"OptionPDE"_s, u"ui"_s));
    const auto *menu = nib->findChild<PopUpButton *>();
    QStringList items;
    for (int i = 0; i < menu->count(); ++i) {
        items.append(u"%1 %2"_s.arg(menu->tagAt(i)).arg(menu->itemText(i)));
    }
    // Which of the options are on: every, end and mirror; auto, half, chain and mirror; special and
    // mirror; mark, chain and mirror.
    QCOMPARE(items,
             QStringList({u"1 EveryEndMirrorOffOffOff"_s, u"2 EveryEndMirrorOffOnOff"_s,
                          u"3 EveryEndMirrorOnOffOff"_s, u"4 EveryEndMirrorOnOnOff"_s,
                          u"5 AHCMOffOffOffOff"_s, u"6 AHCMOffOffOnOff"_s, u"7 AHCMOffOnOffOff"_s,
                          u"8 AHCMOffOnOnOff"_s, u"9 AHCMOnOffOffOff"_s, u"10 AHCMOnOffOnOff"_s,
                          u"11 AHCMOnOnOffOff"_s, u"12 AHCMOnOnOnOff"_s, u"13 SPMROnOff"_s,
                          u"14 CTMROnOffOff"_s, u"15 CTMROnOnOff"_s, u"16 CTMROffOnOff"_s,
                          u"17 CTMROffOffOff"_s}));
}

void PresetMenuTest::presetsAreOfferedByPaper_data()
{
    QTest::addColumn<QString>("paper");
    QTest::addColumn<QList<int>>("greyed");
    const QList<int> onFL = {6, 7, 8, 10, 11, 12, 13};
    QTest::newRow("FL30") << u"FL30"_s << onFL;
    QTest::newRow("FL alone") << u"FL"_s << onFL;
    for (const char *paper : {"fl30", "F", "XFL", "DC03", "AV2055", "C_62", "62x29", "HS058", ""}) {
        QTest::addRow("\"%s\"", paper) << QString::fromLatin1(paper) << QList<int>();
    }
    QTest::newRow("no name") << QString() << QList<int>();
}

void PresetMenuTest::presetsAreOfferedByPaper()
{
    QFETCH(QString, paper);
    QFETCH(QList<int>, greyed);
    PanelFixture fixture;
    fixture.build();
    fixture.host->setPaper(paper);
    for (int tag = -1; tag <= 20; ++tag) {
        QCOMPARE(fixture.panel->validateMenuItem(tag), !greyed.contains(tag));
    }
}

void PresetMenuTest::openedListGreysWhatThePaperForbids()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    menuOf(fixture)->showPopup();
    QCOMPARE(choosableTags(fixture), QList<int>({4, 5, 9}));
    menuOf(fixture)->hidePopup();

    PanelFixture label({.labelSeries = true});
    label.show();
    label.host->changePaper(u"FL30"_s);
    menuOf(label)->showPopup();
    QCOMPARE(choosableTags(label), QList<int>({1, 2, 3, 4, 9, 14, 15, 16, 17}));
    menuOf(label)->hidePopup();
}

void PresetMenuTest::openedListOffersAllOnOtherPaper()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    for (const char16_t *paper : {u"FL30", u"62x29", u"DC03"}) {
        fixture.host->changePaper(QString::fromUtf16(paper));
        menuOf(fixture)->showPopup();
        menuOf(fixture)->hidePopup();
    }
    QCOMPARE(choosableTags(fixture), QList<int>({4, 5, 6, 7, 8, 9, 10, 11, 12, 13}));
}

void PresetMenuTest::greyedPresetCannotBeClicked()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    QCOMPARE(fixture.selectedTag(), 5);
    for (const int tag : {6, 7, 8, 10, 11, 12, 13}) {
        pick(fixture, tag);
        menuOf(fixture)->hidePopup();
        QCOMPARE(fixture.selectedTag(), 5);
        QCOMPARE(fixture.optionsOn(), QList<Option>());
    }
    pick(fixture, 9);
    QCOMPARE(fixture.selectedTag(), 9);
    QCOMPARE(fixture.optionsOn(),
             QList<Option>({OptionCatalogue::CutEvery, OptionCatalogue::AutoCut}));
}

void PresetMenuTest::clickOnAGreyedPresetChoosesNoOther()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    fixture.click(OptionCatalogue::Mirror);
    fixture.panel->refreshed.clear();
    pick(fixture, 6);
    menuOf(fixture)->hidePopup();
    QCOMPARE(fixture.panel->refreshed, QList<quint32>());
    QVERIFY(fixture.isOn(OptionCatalogue::Mirror));
}

void PresetMenuTest::clickOnAGreyedPresetDoesNotChooseTheOneBefore()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    openList(fixture);
    hover(fixture, 9);
    hover(fixture, 10);
    QTest::mouseClick(menuOf(fixture)->view()->viewport(), Qt::LeftButton, {},
                      centerOf(fixture, 10));
    menuOf(fixture)->hidePopup();
    QCOMPARE(fixture.selectedTag(), 5);
    QCOMPARE(fixture.optionsOn(), QList<Option>());
}

void PresetMenuTest::pickedPresetSetsTheBoxes_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<int>("tag");
    QTest::addColumn<QList<int>>("on");
    using Options = QList<int>;
    constexpr int every = OptionCatalogue::CutEvery;
    constexpr int atEnd = OptionCatalogue::CutAtEnd;
    constexpr int autoCut = OptionCatalogue::AutoCut;
    constexpr int half = OptionCatalogue::HalfCut;
    constexpr int chain = OptionCatalogue::ChainPrint;
    constexpr int special = OptionCatalogue::SpecialTape;
    constexpr int mark = OptionCatalogue::CutMark;
    const std::pair<int, Options> onTape[] = {{5, {}},
                                              {6, {chain}},
                                              {7, {half}},
                                              {8, {half, chain}},
                                              {9, {every, autoCut}},
                                              {10, {every, autoCut, chain}},
                                              {11, {every, autoCut, half}},
                                              {12, {every, autoCut, half, chain}},
                                              {13, {special}}};
    for (const auto &[tag, on] : onTape) {
        QTest::addRow("tape printer, %d", tag) << tapePrinter() << tag << on;
    }
    const std::pair<int, Options> withMarks[] = {
        {14, {mark}}, {15, {chain, mark}}, {16, {chain}}, {17, {}}};
    for (const auto &[tag, on] : withMarks) {
        QTest::addRow("printer with cut marks, %d", tag)
            << TestPrinter{.defaults = {{OptionCatalogue::CutEvery, "7"}}} << tag << on;
    }
    const std::pair<int, Options> onLabels[] = {
        {1, {}}, {2, {atEnd}}, {3, {every}}, {4, {every, atEnd}}};
    for (const auto &[tag, on] : onLabels) {
        QTest::addRow("label printer, %d", tag)
            << TestPrinter{.options = {OptionCatalogue::CutEvery, OptionCatalogue::CutAtEnd,
                                       OptionCatalogue::Mirror},
                           .labelSeries = true,
                           .defaults = {{OptionCatalogue::CutEvery, "7"}}}
            << tag << on;
    }
}

void PresetMenuTest::pickedPresetSetsTheBoxes()
{
    QFETCH(TestPrinter, printer);
    QFETCH(int, tag);
    QFETCH(QList<int>, on);
    PanelFixture fixture(printer);
    fixture.show();
    QCOMPARE(fixture.optionsOn(), QList<Option>());
    pick(fixture, tag);
    QCOMPARE(fixture.selectedTag(), tag);
    QList<int> found;
    for (const Option option : fixture.optionsOn()) {
        found.append(int(option));
    }
    QCOMPARE(found, on);
    // The combination is the one that the menu shows for it.
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), tag);
    QCOMPARE(fixture.panel->mCutEveryTxBx->isEnabled(), on.contains(OptionCatalogue::CutEvery));
    QCOMPARE(fixture.takeTold(), QStringList());
}

void PresetMenuTest::pickedPresetIsToldWhenSaved()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    pick(fixture, 11);
    QCOMPARE(fixture.takeTold(), QStringList());
    fixture.panel->saveValuesAndReturnError(nullptr);
    QCOMPARE(fixture.takeTold(),
             QStringList({u"KvCutLabel=7"_s, u"KvCutAtEnd=OFF"_s, u"KvMirror=OFF"_s,
                          u"KvAutoTapeCut=ON"_s, u"KvHalfCut=ON"_s, u"KvChainPrint=OFF"_s,
                          u"KvSpecialTape=OFF"_s, u"KvRemoveBlkSpace=OFF"_s}));
}

void PresetMenuTest::pickingAnyPresetTurnsMirrorPrintingOff()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    for (const int tag : fixture.menuTags()) {
        if (!fixture.isOn(OptionCatalogue::Mirror)) {
            fixture.click(OptionCatalogue::Mirror);
        }
        QVERIFY(fixture.isOn(OptionCatalogue::Mirror));
        pick(fixture, tag);
        QVERIFY(!fixture.isOn(OptionCatalogue::Mirror));
    }
}

void PresetMenuTest::pickingTheSelectedPresetAgainTurnsMirrorPrintingOff()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.click(OptionCatalogue::Mirror);
    const int tag = fixture.selectedTag();
    pick(fixture, tag);
    QCOMPARE(fixture.selectedTag(), tag);
    QVERIFY(!fixture.isOn(OptionCatalogue::Mirror));
}

void PresetMenuTest::keyboardSkipsGreyedPresets()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    QList<int> reached;
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up, Qt::Key_Up, Qt::Key_End,
                              Qt::Key_Home, Qt::Key_PageDown}) {
        QTest::keyClick(menuOf(fixture), key);
        reached.append(fixture.selectedTag());
    }
    QCOMPARE(reached, QList<int>({9, 9, 5, 4, 9, 4, 5}));
    QCOMPARE(fixture.optionsOn(), QList<Option>({OptionCatalogue::CutAtEnd}));
}

void PresetMenuTest::keyboardSkipsGreyedPresetsInTheOpenedList()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    menuOf(fixture)->showPopup();
    QAbstractItemView *list = menuOf(fixture)->view();
    QTest::keyClick(list, Qt::Key_Down);
    QTest::keyClick(list, Qt::Key_Return);
    QCOMPARE(fixture.selectedTag(), 9);
    QCOMPARE(fixture.optionsOn(),
             QList<Option>({OptionCatalogue::CutEvery, OptionCatalogue::AutoCut}));
}

void PresetMenuTest::wheelSkipsGreyedPresets()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    turnWheel(menuOf(fixture), -1);
    QCOMPARE(fixture.selectedTag(), 9);
    turnWheel(menuOf(fixture), -1);
    QCOMPARE(fixture.selectedTag(), 9);
    turnWheel(menuOf(fixture), 1);
    QCOMPARE(fixture.selectedTag(), 5);
}

void PresetMenuTest::onlyThePopUpItemIsRefreshed()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    pick(fixture, 7);
    QCOMPARE(fixture.panel->refreshed, QList<quint32>({0x40000}));
    QCOMPARE(fixture.panel->reread, QList<quint32>());
}

KV_TEST(PresetMenuTest)
#include "tst_presetmenu.moc"
