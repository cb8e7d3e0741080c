// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "plugin/PDEPanelAutomation.h"
#include "support/BundleCopy.h"
#include "toolkit/ViewGeometry.h"

#include <QJsonArray>

/// What the panel tells automation, and lets it choose.
class PanelStateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void panelThatWasNeverSeenTellsTheMarksAlone();
    void tellsTheControlsAsTheUserSeesThem_data();
    void tellsTheControlsAsTheUserSeesThem();
    void leavesOutTheControlThatIsMissing_data();
    void leavesOutTheControlThatIsMissing();
    void followsTheUser();
    void followsTheCount();
    void followsThePaper();
    void tellsMarksOfThePrintersOptionsOnly();
    void tellsWhatThePrinterIs_data();
    void tellsWhatThePrinterIs();
    void namesThePresets();
    void presetIsChosenAsByTheUser();
    void presetThatCannotBeChosenChangesNothing_data();
    void presetThatCannotBeChosenChangesNothing();
};

namespace {

const QStringList countOutlets = {u"mCutEveryTxBx"_s, u"mCutEveryStpr"_s, u"mCutEveryStr"_s};

QJsonObject stateOf(const PanelFixture &fixture)
{
    return fixture.panel->automation()->state();
}

QJsonObject part(const PanelFixture &fixture, const char *name)
{
    return stateOf(fixture).value(QLatin1String(name)).toObject();
}

QJsonObject control(const PanelFixture &fixture, const QString &outlet)
{
    return part(fixture, "controls").value(outlet).toObject();
}

QJsonObject box(const PanelFixture &fixture, Option option)
{
    return control(fixture, QLatin1String(factsOf(option).outlet));
}

/// The names of the nib's controls that the panel may tell of, in the order of an object's keys.
QStringList allOutlets()
{
    QStringList outlets = countOutlets + QStringList{u"mOptionPopUpButton"_s};
    for (const Option option : everyOption) {
        outlets.append(QLatin1String(factsOf(option).outlet));
    }
    outlets.sort();
    return outlets;
}

/// What can be said of any control, from the widget itself.
QJsonObject placeOf(const QWidget *widget)
{
    const QPointF origin = frameOrigin(widget);
    const QSizeF size = frameSize(widget);
    return {{u"hidden"_s, !widget->isVisible()},
            {u"enabled"_s, widget->isEnabled()},
            {u"x"_s, origin.x()},
            {u"y"_s, origin.y()},
            {u"width"_s, size.width()},
            {u"height"_s, size.height()}};
}

QJsonArray jsonOf(const QList<int> &numbers)
{
    QJsonArray array;
    for (const int number : numbers) {
        array.append(number);
    }
    return array;
}
} // namespace

void PanelStateTest::panelThatWasNeverSeenTellsTheMarksAlone()
{
    PanelFixture fixture(tapePrinter());
    fixture.host->mark("KvHalfCut", "ON");
    fixture.build();
    const QJsonObject state = stateOf(fixture);
    QCOMPARE(state.keys(), QStringList({u"controls"_s, u"flags"_s, u"marks"_s, u"popup"_s,
                                        u"preview"_s, u"selections"_s, u"view"_s}));
    QVERIFY(state[u"view"_s].isNull());
    QVERIFY(state[u"preview"_s].isNull());
    QCOMPARE(state[u"controls"_s].toObject(), QJsonObject());
    QCOMPARE(state[u"popup"_s].toObject(), QJsonObject({{u"tags"_s, QJsonArray()},
                                                        {u"selected"_s, QJsonValue()},
                                                        {u"disabled"_s, QJsonArray()}}));
    const QJsonObject selections = state[u"selections"_s].toObject();
    QCOMPARE(selections.size(), 10);
    for (const QJsonValue selection : selections) {
        QVERIFY(selection.isNull());
    }
    const QJsonObject marks = state[u"marks"_s].toObject();
    QCOMPARE(marks.size(), 8);
    QCOMPARE(marks[u"KvHalfCut"_s], QJsonValue(u"ON"_s));
    QCOMPARE(marks[u"KvCutLabel"_s], QJsonValue(u"7"_s));
    QCOMPARE(state[u"flags"_s][u"set_formatSetting"_s], QJsonValue(0));
    QVERIFY(fixture.panel->automation()->presets().isEmpty());
    QVERIFY(!fixture.panel->kPDEView);
}

void PanelStateTest::tellsTheControlsAsTheUserSeesThem_data()
{
    QTest::addColumn<TestPrinter>("printer");
    QTest::addColumn<QString>("paper");

    QTest::newRow("every option") << TestPrinter() << u"62x29"_s;
    QTest::newRow("tape printer on label paper") << tapePrinter() << u"FL30"_s;
    QTest::newRow("label printer")
        << TestPrinter{.options = {cutEvery, OptionCatalogue::CutAtEnd, OptionCatalogue::Mirror},
                       .labelSeries = true,
                       .defaults = {{OptionCatalogue::Mirror, "ON"}}}
        << u"DC03"_s;
}

void PanelStateTest::tellsTheControlsAsTheUserSeesThem()
{
    QFETCH(TestPrinter, printer);
    QFETCH(QString, paper);
    PanelFixture fixture(printer);
    fixture.show();
    fixture.host->changePaper(paper);
    const RecordingPanel &panel = *fixture.panel;
    QCOMPARE(part(fixture, "controls").keys(), allOutlets());
    for (const Option option : everyOption) {
        QJsonObject expected = placeOf(fixture.box(option));
        expected[u"state"_s] = fixture.isOn(option) ? 1 : 0;
        expected[u"title"_s] = fixture.box(option)->title();
        QCOMPARE(box(fixture, option), expected);
    }
    QCOMPARE(control(fixture, u"mOptionPopUpButton"_s), placeOf(panel.mOptionPopUpButton));
    QJsonObject field = placeOf(panel.mCutEveryTxBx);
    field[u"text"_s] = panel.mCutEveryTxBx->text();
    QCOMPARE(control(fixture, u"mCutEveryTxBx"_s), field);
    QJsonObject stepper = placeOf(panel.mCutEveryStpr);
    stepper[u"value"_s] = panel.mCutEveryStpr->intValue();
    QCOMPARE(control(fixture, u"mCutEveryStpr"_s), stepper);
    const QSizeF view = frameSize(panel.kPDEView);
    QCOMPARE(part(fixture, "view"),
             QJsonObject({{u"width"_s, view.width()}, {u"height"_s, view.height()}}));
    QCOMPARE(stateOf(fixture)[u"preview"_s].toString(), panel.mOptionView->targetDrawImageName());
}

void PanelStateTest::leavesOutTheControlThatIsMissing_data()
{
    QTest::addColumn<QString>("missing");
    for (const QString &outlet : allOutlets()) {
        QTest::newRow(qPrintable(outlet)) << outlet;
    }
}

void PanelStateTest::leavesOutTheControlThatIsMissing()
{
    QFETCH(QString, missing);
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(missing));
    PanelFixture fixture(TestPrinter(), copy.open());
    fixture.show();
    QStringList expected = allOutlets();
    expected.removeOne(missing);
    QCOMPARE(part(fixture, "controls").keys(), expected);
    const bool hasMenu = missing != u"mOptionPopUpButton";
    QCOMPARE(part(fixture, "popup")[u"tags"_s].toArray().isEmpty(), !hasMenu);
    QCOMPARE(part(fixture, "popup")[u"selected"_s].isNull(), !hasMenu);
    QCOMPARE(part(fixture, "marks").size(), 9);
}

void PanelStateTest::followsTheUser()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    QCOMPARE(part(fixture, "popup")[u"selected"_s], QJsonValue(5));
    QCOMPARE(stateOf(fixture)[u"preview"_s], QJsonValue(u"AHCMOffOffOffOff"_s));
    QCOMPARE(box(fixture, halfCut)[u"state"_s], QJsonValue(0));
    QCOMPARE(part(fixture, "selections")[u"mHalfCut_Selection"_s], QJsonValue(u"OFF"_s));

    fixture.click(halfCut);
    QCOMPARE(part(fixture, "popup")[u"selected"_s], QJsonValue(7));
    QCOMPARE(stateOf(fixture)[u"preview"_s], QJsonValue(u"AHCMOffOnOffOff"_s));
    QCOMPARE(box(fixture, halfCut)[u"state"_s], QJsonValue(1));
    QCOMPARE(box(fixture, halfCut)[u"title"_s], QJsonValue(u"KvHalfCut"_s));
    QCOMPARE(part(fixture, "selections")[u"mHalfCut_Selection"_s], QJsonValue(u"ON"_s));
    QCOMPARE(part(fixture, "marks")[u"KvHalfCut"_s], QJsonValue(u"ON"_s));
    fixture.unmark("KvHalfCut");
    QVERIFY(part(fixture, "marks").contains(u"KvHalfCut"_s));
    QVERIFY(part(fixture, "marks")[u"KvHalfCut"_s].isNull());
}

void PanelStateTest::followsTheCount()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    QCOMPARE(control(fixture, u"mCutEveryTxBx"_s)[u"text"_s], QJsonValue(u"7"_s));
    QCOMPARE(control(fixture, u"mCutEveryTxBx"_s)[u"enabled"_s], QJsonValue(false));
    QCOMPARE(control(fixture, u"mCutEveryStr"_s)[u"title"_s],
             QJsonValue(fixture.panel->mCutEveryStr->text()));
    QCOMPARE(control(fixture, u"mCutEveryStr"_s)[u"dimmed"_s], QJsonValue(true));

    fixture.click(cutEvery);
    QCOMPARE(control(fixture, u"mCutEveryTxBx"_s)[u"enabled"_s], QJsonValue(true));
    QCOMPARE(control(fixture, u"mCutEveryStr"_s)[u"dimmed"_s], QJsonValue(false));
    fixture.type(u"12"_s);
    QCOMPARE(control(fixture, u"mCutEveryTxBx"_s)[u"text"_s], QJsonValue(u"12"_s));
    QCOMPARE(control(fixture, u"mCutEveryStpr"_s)[u"value"_s], QJsonValue(12));
    QCOMPARE(part(fixture, "selections")[u"mCutEvery_Selection"_s], QJsonValue(u"12"_s));
    QCOMPARE(part(fixture, "selections")[u"mAutoCut_CutEvery_Selection"_s], QJsonValue(u"ON"_s));
    QCOMPARE(part(fixture, "marks")[u"KvCutLabel"_s], QJsonValue(u"12"_s));
}

void PanelStateTest::followsThePaper()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    const QJsonArray tags = jsonOf({4, 5, 6, 7, 8, 9, 10, 11, 12, 13});
    QCOMPARE(part(fixture, "popup")[u"tags"_s].toArray(), tags);
    QCOMPARE(part(fixture, "popup")[u"disabled"_s].toArray(), QJsonArray());
    QCOMPARE(part(fixture, "flags")[u"mTapeState"_s], QJsonValue(0));

    fixture.host->changePaper(u"FL30"_s);
    QVERIFY(fixture.panel->saveValuesAndReturnError(nullptr));
    QCOMPARE(part(fixture, "popup")[u"tags"_s].toArray(), tags);
    QCOMPARE(part(fixture, "popup")[u"disabled"_s].toArray(), jsonOf({6, 7, 8, 10, 11, 12, 13}));
    QCOMPARE(part(fixture, "flags")[u"mTapeState"_s], QJsonValue(1));
    QCOMPARE(box(fixture, halfCut)[u"enabled"_s], QJsonValue(false));
}

void PanelStateTest::tellsMarksOfThePrintersOptionsOnly()
{
    PanelFixture fixture(PPDText().onOff("KvMirror", "ON").onOff("KvOther", "ON"));
    fixture.show();
    QCOMPARE(part(fixture, "marks"), QJsonObject({{u"KvMirror"_s, u"ON"_s}}));
}

void PanelStateTest::tellsWhatThePrinterIs_data()
{
    QTest::addColumn<bool>("labelSeries");
    QTest::addColumn<bool>("separateAutoCut");
    QTest::addColumn<QString>("uri");
    QTest::addColumn<bool>("isUSB");

    QTest::newRow("label printer at USB") << true << false << u"usb://Korvane/T"_s << true;
    QTest::newRow("tape printer at USB") << false << true << u"KVMQUSB://Korvane/T"_s << true;
    QTest::newRow("tape printer in the network") << false << false << u"ipp://host/T"_s << false;
}

void PanelStateTest::tellsWhatThePrinterIs()
{
    QFETCH(bool, labelSeries);
    QFETCH(bool, separateAutoCut);
    QFETCH(QString, uri);
    QFETCH(bool, isUSB);
    PanelFixture fixture({.separateAutoCut = separateAutoCut, .labelSeries = labelSeries});
    fixture.host->printer = Printer(u"test"_s, uri);
    fixture.show();
    QCOMPARE(fixture.panel->automation()->isRVPrinter(), labelSeries);
    QCOMPARE(part(fixture, "flags"),
             QJsonObject({{u"mTapeState"_s, 0},
                          {u"mAutoCutHideKey_dec"_s, separateAutoCut ? 1 : 0},
                          {u"set_formatSetting"_s, 1},
                          {u"usb_dec"_s, isUSB ? 1 : 0}}));
}

void PanelStateTest::namesThePresets()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.click(halfCut);
    QStringList presets;
    QStringList selected;
    for (const PDEPreset &preset : fixture.panel->automation()->presets()) {
        presets.append(u"%1 %2 %3"_s.arg(preset.tag).arg(preset.identifier, preset.name));
        QVERIFY(preset.isEnabled);
        if (preset.isSelected) {
            selected.append(preset.identifier);
        }
    }
    QCOMPARE(presets,
             QStringList({u"4 EveryEndMirrorOnOnOff Cut between labels and at end"_s,
                          u"5 AHCMOffOffOffOff No automatic cutting"_s,
                          u"6 AHCMOffOffOnOff Chain printing"_s, u"7 AHCMOffOnOffOff Half cut"_s,
                          u"8 AHCMOffOnOnOff Half cut and chain printing"_s,
                          u"9 AHCMOnOffOffOff Auto cut"_s,
                          u"10 AHCMOnOffOnOff Auto cut and chain printing"_s,
                          u"11 AHCMOnOnOffOff Auto cut and half cut"_s,
                          u"12 AHCMOnOnOnOff Auto cut, half cut and chain printing"_s,
                          u"13 SPMROnOff Special tape"_s}));
    QCOMPARE(selected, QStringList{u"AHCMOffOnOffOff"_s});
}

void PanelStateTest::presetIsChosenAsByTheUser()
{
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.click(OptionCatalogue::Mirror);
    fixture.takeTold();
    fixture.panel->refreshed.clear();
    QVERIFY(fixture.panel->automation()->choosePreset(u"AHCMOnOffOnOff"_s));
    QCOMPARE(fixture.selectedTag(), 10);
    QCOMPARE(fixture.optionsOn(),
             QList<Option>({cutEvery, OptionCatalogue::AutoCut, OptionCatalogue::ChainPrint}));
    QCOMPARE(fixture.panel->refreshed, QList<quint32>({PopUpButtonItem}));
    QCOMPARE(fixture.takeTold(), QStringList());

    // Choosing it again is a choice too.
    fixture.click(OptionCatalogue::Mirror);
    QVERIFY(fixture.panel->automation()->choosePreset(u"AHCMOnOffOnOff"_s));
    QVERIFY(!fixture.isOn(OptionCatalogue::Mirror));
}

void PanelStateTest::presetThatCannotBeChosenChangesNothing_data()
{
    QTest::addColumn<QString>("identifier");

    QTest::newRow("none") << QString();
    QTest::newRow("empty") << u""_s;
    QTest::newRow("unknown") << u"AHCMOnOnOnOn"_s;
    QTest::newRow("of the label printers") << u"EveryEndMirrorOffOnOff"_s;
    QTest::newRow("other case") << u"ahcmonoffoffoff"_s;
    QTest::newRow("forbidden on the paper") << u"AHCMOffOnOffOff"_s;
    QTest::newRow("its name") << u"Auto cut"_s;
}

void PanelStateTest::presetThatCannotBeChosenChangesNothing()
{
    QFETCH(QString, identifier);
    PanelFixture fixture(tapePrinter());
    fixture.show();
    fixture.host->changePaper(u"FL30"_s);
    fixture.click(OptionCatalogue::Mirror);
    fixture.takeTold();
    const QJsonObject before = stateOf(fixture);
    QVERIFY(!fixture.panel->automation()->choosePreset(identifier));
    QCOMPARE(stateOf(fixture), before);
    QCOMPARE(fixture.takeTold(), QStringList());
    QVERIFY(fixture.panel->automation()->choosePreset(u"AHCMOnOffOffOff"_s));
    QVERIFY(stateOf(fixture) != before);
}

KV_TEST(PanelStateTest)
#include "tst_panelstate.moc"
