// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"
#include "support/BundleCopy.h"

/// A nib that lacks a control: the panel goes on with the others, and loses no choice.
class OutletsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingControlIsNotConnected_data();
    void missingControlIsNotConnected();
    void markedChoicesAreSavedBeforeTheViewIsThere_data();
    void markedChoicesAreSavedBeforeTheViewIsThere();
    void clickedChoicesAreSavedAndMarkedOnesKept_data();
    void clickedChoicesAreSavedAndMarkedOnesKept();
    void specialTapeLeavesMissingBoxesTheirMark_data();
    void specialTapeLeavesMissingBoxesTheirMark();
    void panelGoesOnWithoutTheControl_data();
    void panelGoesOnWithoutTheControl();
    void viewWithoutAnyControlKeepsTheMarks();
    void controlOfAnotherClassIsToldAndHidden_data();
    void controlOfAnotherClassIsToldAndHidden();
};

namespace {

const QStringList outlets = {
    u"kPDEView"_s,         u"mOptionDummyView"_s,  u"mOptionPopUpButton"_s,   u"mCutEveryChkBx"_s,
    u"mCutAndEndChkBx"_s,  u"mMirrorPrintChkBx"_s, u"mAutoCutChkBx"_s,        u"mHalfCutChkBx"_s,
    u"mChainPrintChkBx"_s, u"mSpecialTapeChkBx"_s, u"mRemoveBlkSpaceChkBx"_s, u"mCutMarkChkBx"_s,
    u"mCutEveryTxBx"_s,    u"mCutEveryStpr"_s,     u"mCutEveryStr"_s,
};

/// A printer that is off by default, on which the user once chose everything, and 7 labels.
void markEverything(const PanelFixture &fixture)
{
    for (const Option option : everyOption) {
        fixture.host->mark(factsOf(option).keyword, option == cutEvery ? "7" : "ON");
    }
}

/// The outlets that the panel has connected.
QStringList connected(const PanelFixture &fixture)
{
    const RecordingPanel &panel = *fixture.panel;
    QList<const QWidget *> widgets = {panel.kPDEView, panel.mOptionPopUpButton};
    for (const Option option : everyOption) {
        widgets.append(fixture.box(option));
    }
    widgets << panel.mCutEveryTxBx.data() << panel.mCutEveryStpr.data()
            << panel.mCutEveryStr.data();
    QStringList names;
    for (const QWidget *widget : std::as_const(widgets)) {
        if (widget) {
            names.append(widget->objectName());
        }
    }
    return names;
}

bool canBeClicked(const QWidget *widget)
{
    return widget && widget->isVisible() && widget->isEnabled();
}

QStringList save(PanelFixture &fixture)
{
    fixture.takeTold();
    fixture.panel->saveValuesAndReturnError(nullptr);
    return fixture.takeTold();
}

/// What is to be saved: what each box shows, and for a missing box what is marked.
QStringList expectedSave(const PanelFixture &fixture, const QList<Option> &forcedOff = {})
{
    QStringList told = {pairOf(cutEvery, fixture.host->marked("KvCutLabel"))};
    for (const Option option : everyOptionBut(cutEvery)) {
        const CheckBox *box = fixture.box(option);
        const bool on = box && box->isChecked() && !forcedOff.contains(option);
        const QString shown = on ? u"ON"_s : u"OFF"_s;
        told.append(pairOf(option, box ? shown : u"ON"_s));
    }
    return told;
}

/// Clicks a box, which must then show and tell its new state.
void clickAndCheck(PanelFixture &fixture, Option option)
{
    const bool before = fixture.isOn(option);
    fixture.takeTold();
    fixture.click(option);
    QCOMPARE(fixture.isOn(option), !before);
    QCOMPARE(fixture.takeTold(), QStringList{pairOf(option == cutEvery ? autoCut : option,
                                                    before ? u"OFF"_s : u"ON"_s)});
}

/// Changes the count with what there is; the count that was told last.
QString changeCount(PanelFixture &fixture)
{
    fixture.takeTold();
    if (canBeClicked(fixture.panel->mCutEveryTxBx)) {
        fixture.type(u"12"_s);
    } else if (canBeClicked(fixture.panel->mCutEveryStpr)) {
        fixture.step("stepUp");
    }
    const QStringList told = fixture.takeTold();
    return told.isEmpty() ? QString() : told.last().section(u'=', 1);
}

void addOutletRows()
{
    QTest::addColumn<QString>("missing");
    for (const QString &outlet : outlets) {
        QTest::newRow(qPrintable(outlet)) << outlet;
    }
}

/// A panel without that outlet, on a printer with everything marked.
PanelFixture fixtureWithout(const BundleCopy &copy)
{
    PanelFixture fixture(TestPrinter(), copy.open());
    markEverything(fixture);
    return fixture;
}
} // namespace

void OutletsTest::missingControlIsNotConnected_data()
{
    addOutletRows();
}

void OutletsTest::missingControlIsNotConnected()
{
    QFETCH(QString, missing);
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(missing));
    PanelFixture fixture = fixtureWithout(copy);
    fixture.build();
    QCOMPARE(fixture.panel->panelView() == nullptr, missing == u"kPDEView");
    QStringList expected = outlets;
    expected.removeOne(u"mOptionDummyView"_s);
    expected.removeOne(missing);
    QCOMPARE(connected(fixture), expected);
    QVERIFY(fixture.panel->mOptionView);
    const bool hasPlace = missing != u"mOptionDummyView";
    QCOMPARE(fixture.panel->mOptionView->parentWidget() != nullptr, hasPlace);
}

void OutletsTest::markedChoicesAreSavedBeforeTheViewIsThere_data()
{
    addOutletRows();
}

void OutletsTest::markedChoicesAreSavedBeforeTheViewIsThere()
{
    QFETCH(QString, missing);
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(missing));
    PanelFixture fixture = fixtureWithout(copy);
    fixture.build();
    QCOMPARE(fixture.panel->supportedPPDOptionKeys()->size(), 9);
    QCOMPARE(fixture.takeTold(),
             QStringList({u"KvCutLabel=7"_s, u"KvCutAtEnd=ON"_s, u"KvMirror=ON"_s,
                          u"KvAutoTapeCut=ON"_s, u"KvHalfCut=ON"_s, u"KvChainPrint=ON"_s,
                          u"KvSpecialTape=ON"_s, u"KvRemoveBlkSpace=ON"_s, u"KvCutMark=ON"_s}));
}

void OutletsTest::clickedChoicesAreSavedAndMarkedOnesKept_data()
{
    addOutletRows();
}

void OutletsTest::clickedChoicesAreSavedAndMarkedOnesKept()
{
    QFETCH(QString, missing);
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(missing));
    PanelFixture fixture = fixtureWithout(copy);
    fixture.show();
    for (const Option option : everyOption) {
        if (!fixture.box(option)) {
            const QString marked = fixture.host->marked(factsOf(option).keyword);
            QCOMPARE(marked, option == cutEvery ? u"7"_s : u"ON"_s);
        }
    }
    QCOMPARE(fixture.host->marked("KvCutLabel"), u"7"_s);

    if (canBeClicked(fixture.box(cutEvery))) {
        clickAndCheck(fixture, cutEvery);
        clickAndCheck(fixture, cutEvery);
    }
    const QString count = changeCount(fixture);
    QCOMPARE(count, missing == u"kPDEView"        ? QString()
                    : missing == u"mCutEveryTxBx" ? u"8"_s
                                                  : u"12"_s);
    for (const Option option : everyOption) {
        if (option != cutEvery && option != specialTape && canBeClicked(fixture.box(option))) {
            clickAndCheck(fixture, option);
        }
    }
    QCOMPARE(fixture.host->marked("KvCutLabel"), count.isNull() ? u"7"_s : count);
    QCOMPARE(save(fixture), expectedSave(fixture));
    QCOMPARE(save(fixture), expectedSave(fixture));
}

void OutletsTest::specialTapeLeavesMissingBoxesTheirMark_data()
{
    addOutletRows();
}

void OutletsTest::specialTapeLeavesMissingBoxesTheirMark()
{
    QFETCH(QString, missing);
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(missing));
    PanelFixture fixture = fixtureWithout(copy);
    fixture.show();
    if (!canBeClicked(fixture.box(specialTape))) {
        QVERIFY(missing == u"mSpecialTapeChkBx" || missing == u"kPDEView");
        QCOMPARE(save(fixture), expectedSave(fixture));
        return;
    }
    const QList<Option> cutting = {autoCut, OptionCatalogue::HalfCut, OptionCatalogue::ChainPrint,
                                   OptionCatalogue::CutMark};
    for (const Option option : cutting) {
        if (fixture.box(option)) {
            fixture.setOn(option, true);
        }
    }
    clickAndCheck(fixture, specialTape);
    QCOMPARE(save(fixture), expectedSave(fixture, cutting));
    clickAndCheck(fixture, specialTape);
}

void OutletsTest::panelGoesOnWithoutTheControl_data()
{
    addOutletRows();
}

void OutletsTest::panelGoesOnWithoutTheControl()
{
    QFETCH(QString, missing);
    BundleCopy copy;
    QVERIFY(copy.removeOutlet(missing));
    PanelFixture fixture = fixtureWithout(copy);
    fixture.show();
    if (canBeClicked(fixture.panel->mOptionPopUpButton)) {
        QTest::keyClick(fixture.panel->mOptionPopUpButton, Qt::Key_Down);
        QTest::keyClick(fixture.panel->mOptionPopUpButton, Qt::Key_Up);
    }
    for (const char16_t *paper : {u"FL30", u"HS058", u"C_62", u"62x29"}) {
        fixture.host->changePaper(QString::fromUtf16(paper));
        QVERIFY(fixture.panel->restoreValuesAndReturnError(nullptr));
        fixture.panel->willShow();
        const QVariantMap summary = fixture.panel->summaryInfo().value();
        QVERIFY(summary.size() >= 8);
        QVERIFY(fixture.panel->shouldPrint());
        if (fixture.panel->mOptionView->isVisible()) {
            QVERIFY(!fixture.panel->mOptionView->grab().isNull());
        }
    }
    fixture.host->mark("KvAutoTapeCut", "ON");
    QCOMPARE(save(fixture), expectedSave(fixture));
    fixture.panel->printWindowWillClose();
    fixture.host->panel = nullptr;
    fixture.panel.reset();
    fixture.host->changePaper(u"FL30"_s);
    QCOMPARE(fixture.takeTold(), QStringList());
}

void OutletsTest::viewWithoutAnyControlKeepsTheMarks()
{
    BundleCopy copy;
    for (const QString &outlet : outlets.mid(1)) {
        QVERIFY(copy.removeOutlet(outlet));
    }
    PanelFixture fixture = fixtureWithout(copy);
    fixture.show();
    QCOMPARE(connected(fixture), QStringList{u"kPDEView"_s});
    QCOMPARE(fixture.panel->targetPopUpButtonTag(), 5);
    QCOMPARE(fixture.panel->mOptionView->targetDrawImageName(), u"AHCMOffOffOffOff"_s);
    fixture.host->changePaper(u"FL30"_s);
    fixture.panel->changeOptionPopUpButton(nullptr);
    fixture.panel->changeCutEveryValue(nullptr);
    QVERIFY(fixture.panel->restoreValuesAndReturnError(nullptr));
    const QStringList told = save(fixture);
    QCOMPARE(told, expectedSave(fixture));
    QCOMPARE(told.size(), 9);
    QCOMPARE(told.first(), u"KvCutLabel=7"_s);
}

void OutletsTest::controlOfAnotherClassIsToldAndHidden_data()
{
    QTest::addColumn<QString>("outlet");
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("given");
    QTest::newRow("check box") << u"mHalfCutChkBx"_s << u"CheckBox"_s << u"QCheckBox"_s;
    QTest::newRow("menu") << u"mOptionPopUpButton"_s << u"PopUpButton"_s << u"QComboBox"_s;
    QTest::newRow("stepper") << u"mCutEveryStpr"_s << u"Stepper"_s << u"QSpinBox"_s;
    QTest::newRow("field") << u"mCutEveryTxBx"_s << u"QLineEdit"_s << u"QLabel"_s;
}

void OutletsTest::controlOfAnotherClassIsToldAndHidden()
{
    QFETCH(QString, outlet);
    QFETCH(QString, wanted);
    QFETCH(QString, given);
    const QString named = u"class=\"%1\" name=\"%2\""_s;
    const BundleCopy copy;
    QVERIFY(copy.replaceInNib(named.arg(wanted, outlet), named.arg(given, outlet)));
    static QStringList told;
    told.clear();
    const QtMessageHandler former = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { told.append(text); });
    for (int times = 1; times <= 2; ++times) {
        PanelFixture fixture(TestPrinter(), copy.open());
        fixture.show();
        QVERIFY(!connected(fixture).contains(outlet));
        const auto *control = fixture.panel->kPDEView->findChild<QWidget *>(outlet);
        QVERIFY(control && control->isHidden());
        QCOMPARE(control->metaObject()->className(), given.toLatin1().constData());
    }
    qInstallMessageHandler(former);
    QCOMPARE(told,
             QStringList(u"OptionPDE.ui: %1 is a %2 where a %3 is needed; it is not shown"_s.arg(
                 outlet, given, wanted)));
}

KV_TEST(OutletsTest)
#include "tst_outlets.moc"
