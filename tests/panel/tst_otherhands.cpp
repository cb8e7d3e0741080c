// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include <QAccessible>

#include <functional>

/// Controls that are changed by other means than mouse and keyboard: by assistive technology, or
/// by code of whoever acts for the user.
class OtherHandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tickedBoxIsAsIfClicked_data();
    void tickedBoxIsAsIfClicked();
    void editedCountIsAsIfTyped_data();
    void editedCountIsAsIfTyped();
    void boxesAreTickedOneAfterTheOther();
    void disabledBoxTakesNoTick_data() { waysToTick(); }
    void disabledBoxTakesNoTick();
    void disabledFieldTakesNoCount_data() { waysToEdit(); }
    void disabledFieldTakesNoCount();
    void boxThatIsToggledBackFollowsToo();
    void caretStaysWhereTheUserTypes();

private: // NOLINT(readability-redundant-access-specifiers)
    static void waysToTick();
    static void waysToEdit();
};

namespace {
/// Ticks a box, or takes the tick away.
using Ticking = std::function<void(CheckBox &box)>;
/// Puts "45" in the place of a field's text.
using Editing = std::function<void(QLineEdit &field)>;

struct WayToTick
{
    const char *name;
    void (*tick)(CheckBox &box);
};

const WayToTick tickings[] = {
    {"accessible action",
     [](CheckBox &box) {
         QAccessible::queryAccessibleInterface(&box)->actionInterface()->doAction(
             QAccessibleActionInterface::toggleAction());
     }},
    {"setChecked()",
     [](CheckBox &box) {
         box.setChecked(!box.isChecked());
     }},
    {"setCheckState()",
     [](CheckBox &box) {
         box.setCheckState(box.isChecked() ? Qt::Unchecked : Qt::Checked);
     }},
    {"toggle()",
     [](CheckBox &box) {
         box.toggle();
     }},
    {"click()",
     [](CheckBox &box) {
         box.click();
     }},
    {"property",
     [](CheckBox &box) {
         box.setProperty("checked", !box.isChecked());
     }},
};

QAccessibleInterface *accessibleOf(QLineEdit &field)
{
    return QAccessible::queryAccessibleInterface(&field);
}

struct WayToEdit
{
    const char *name;
    void (*edit)(QLineEdit &field);
};

const WayToEdit editings[] = {
    {"replaceText()",
     [](QLineEdit &field) {
         accessibleOf(field)->editableTextInterface()->replaceText(0, int(field.text().size()),
                                                                   u"45"_s);
     }},
    {"insertText()",
     [](QLineEdit &field) {
         QAccessibleEditableTextInterface *text = accessibleOf(field)->editableTextInterface();
         text->insertText(0, u"45"_s);
         // 45 and what was there before is more than there may be.
         text->replaceText(0, int(field.text().size()), u"5"_s);
         text->insertText(0, u"4"_s);
     }},
    {"accessible value",
     [](QLineEdit &field) {
         accessibleOf(field)->setText(QAccessible::Value, u"45"_s);
     }},
    {"setText()",
     [](QLineEdit &field) {
         field.setText(u"45"_s);
     }},
    {"property",
     [](QLineEdit &field) {
         field.setProperty("text", u"45"_s);
     }},
};
} // namespace

Q_DECLARE_METATYPE(Ticking)
Q_DECLARE_METATYPE(Editing)

void OtherHandsTest::waysToTick()
{
    QTest::addColumn<Ticking>("tick");
    for (const WayToTick &way : tickings) {
        QTest::newRow(way.name) << Ticking(way.tick);
    }
}

void OtherHandsTest::waysToEdit()
{
    QTest::addColumn<Editing>("edit");
    for (const WayToEdit &way : editings) {
        QTest::newRow(way.name) << Editing(way.edit);
    }
}

void OtherHandsTest::tickedBoxIsAsIfClicked_data()
{
    QTest::addColumn<Ticking>("tick");
    QTest::addColumn<int>("option");
    for (const WayToTick &way : tickings) {
        for (const Option option : everyOption) {
            QTest::addRow("%s, %s", way.name, factsOf(option).keyword)
                << Ticking(way.tick) << int(option);
        }
    }
}

void OtherHandsTest::tickedBoxIsAsIfClicked()
{
    QFETCH(const Ticking, tick);
    QFETCH(const int, option);
    PanelFixture clicked(allOff());
    clicked.show();
    PanelFixture ticked(allOff());
    ticked.show();
    for (int times = 1; times <= 3; ++times) {
        clicked.click(Option(option));
        PaintWatcher preview(ticked.panel->mOptionView);
        tick(*ticked.box(Option(option)));
        QCOMPARE(ticked.panel->state(), clicked.panel->state());
        QCOMPARE(ticked.takeTold(), clicked.takeTold());
        QCOMPARE(ticked.panel->refreshed, clicked.panel->refreshed);
        QCOMPARE(ticked.panel->reread, clicked.panel->reread);
        QCOMPARE(ticked.panel->summaryInfo(), clicked.panel->summaryInfo());
        QVERIFY(preview.waitForPaint());
    }
}

void OtherHandsTest::editedCountIsAsIfTyped_data()
{
    waysToEdit();
}

void OtherHandsTest::editedCountIsAsIfTyped()
{
    QFETCH(const Editing, edit);
    const TestPrinter printer{.defaults = {{autoCut, "ON"}}};
    PanelFixture typed(printer);
    typed.show();
    typed.type(u"45"_s);
    PanelFixture edited(printer);
    edited.show();
    edit(*edited.panel->mCutEveryTxBx);
    QCOMPARE(edited.panel->mCutEveryTxBx->text(), u"45"_s);
    QCOMPARE(edited.panel->mCutEveryStpr->intValue(), 45);
    QCOMPARE(edited.host->marked("KvCutLabel"), u"45"_s);
    QCOMPARE(edited.takeTold().last(), u"KvCutLabel=45"_s);
    QCOMPARE(edited.panel->state(), typed.panel->state());
    QCOMPARE(edited.panel->summaryInfo(), typed.panel->summaryInfo());

    // Once more, with a count that is clamped.
    edited.panel->mCutEveryTxBx->setText(u"4500"_s);
    QCOMPARE(edited.panel->mCutEveryTxBx->text(), u"99"_s);
    QCOMPARE(edited.takeTold(), QStringList{u"KvCutLabel=99"_s});
}

void OtherHandsTest::boxesAreTickedOneAfterTheOther()
{
    PanelFixture fixture(allOff());
    fixture.show();
    const auto toggle = tickings[0].tick;
    toggle(*fixture.box(halfCut));
    toggle(*fixture.box(specialTape));
    // Special tape rules half cut out, which can be toggled no more.
    QVERIFY(!fixture.box(halfCut)->isEnabled());
    toggle(*fixture.box(halfCut));
    QVERIFY(fixture.isOn(halfCut));
    QCOMPARE(fixture.takeTold(), QStringList({u"KvHalfCut=ON"_s, u"KvSpecialTape=ON"_s}));
    toggle(*fixture.box(specialTape));
    toggle(*fixture.box(halfCut));
    QCOMPARE(fixture.takeTold(), QStringList({u"KvSpecialTape=OFF"_s, u"KvHalfCut=OFF"_s}));
}

void OtherHandsTest::disabledBoxTakesNoTick()
{
    QFETCH(const Ticking, tick);
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(specialTape);
    fixture.takeTold();
    const QJsonObject state = fixture.panel->state();
    for (const Option option : {autoCut, halfCut, chainPrint, cutEvery}) {
        tick(*fixture.box(option));
        QVERIFY(!fixture.isOn(option));
        QCOMPARE(fixture.takeTold(), QStringList());
        QCOMPARE(fixture.panel->state(), state);
    }
}

void OtherHandsTest::disabledFieldTakesNoCount()
{
    QFETCH(const Editing, edit);
    PanelFixture fixture(allOff());
    fixture.show();
    QVERIFY(!fixture.panel->mCutEveryTxBx->isEnabled());
    const QJsonObject state = fixture.panel->state();
    edit(*fixture.panel->mCutEveryTxBx);
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(fixture.panel->state(), state);
}

void OtherHandsTest::boxThatIsToggledBackFollowsToo()
{
    PanelFixture fixture(allOff());
    fixture.show();
    CheckBox *box = fixture.box(halfCut);
    // Somebody who lets nothing be ticked, whoever does it.
    connect(box, &QCheckBox::toggled, box, [box](bool on) {
        if (on) {
            box->setChecked(false);
        }
    });
    box->setChecked(true);
    QVERIFY(!box->isChecked());
    QCOMPARE(fixture.takeTold(), QStringList({u"KvHalfCut=ON"_s, u"KvHalfCut=OFF"_s}));
    fixture.host->mark("KvHalfCut", "ON");
    fixture.panel->restoreValuesAndReturnError(nullptr);
    QVERIFY(!box->isChecked());
    QCOMPARE(fixture.host->marked("KvHalfCut"), u"OFF"_s);
}

void OtherHandsTest::caretStaysWhereTheUserTypes()
{
    PanelFixture fixture({.defaults = {{autoCut, "ON"}}});
    fixture.show();
    fixture.type(u"5"_s);
    QLineEdit *field = fixture.panel->mCutEveryTxBx;
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClicks(field, u"4"_s);
    QCOMPARE(field->text(), u"45"_s);
    QCOMPARE(field->cursorPosition(), 1);
    QTest::keySequence(field, QKeySequence::Undo);
    QCOMPARE(field->text(), u"5"_s);
    QCOMPARE(fixture.selectedKeyword(cutEvery), u"5"_s);
}

KV_TEST(OtherHandsTest)
#include "tst_otherhands.moc"
