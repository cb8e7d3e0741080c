// SPDX-License-Identifier: Apache-2.0
#include "AccessTree.h"
#include "PanelFixture.h"

#include <QToolButton>

/// The count as a number that assistive technology reads and sets.
class StepperValueTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numberAndBoundsAreTold();
    void numberIsSetAsByTheUser_data();
    void numberIsSetAsByTheUser();
    void actionsMoveTheNumber();
    void disabledStepperIsNotMoved();
    void arrowsAreNamed();
    void disabledArrowsShowTheReason();
};

namespace {
/// A printer with auto cut on, so that the count can be set, and the counts 3 to 12.
PPDText printer()
{
    PPDText text;
    text.counts(3, 12, "5").onOff("KvAutoTapeCut", "ON").size("62x29", 175.0, 82.0);
    return text;
}

/// Shows a panel of printer() whose count can be set.
void showEnabled(PanelFixture &fixture)
{
    fixture.show();
    fixture.restore();
    fixture.click(OptionCatalogue::CutEvery);
    if (!fixture.isOn(OptionCatalogue::CutEvery)) {
        fixture.click(OptionCatalogue::CutEvery);
    }
    fixture.takeTold();
    QVERIFY(fixture.panel->mCutEveryStpr->isEnabled());
}
} // namespace

void StepperValueTest::numberAndBoundsAreTold()
{
    PanelFixture fixture(printer());
    showEnabled(fixture);
    QAccessibleInterface *access = accessOf(fixture.panel->mCutEveryStpr);
    QAccessibleValueInterface *value = access->valueInterface();
    QVERIFY(value);
    QCOMPARE(value->currentValue().toInt(), 5);
    QCOMPARE(value->minimumValue().toInt(), 3);
    QCOMPARE(value->maximumValue().toInt(), 12);
    QCOMPARE(value->minimumStepSize().toInt(), 1);
    QCOMPARE(valueOf(fixture.panel->mCutEveryStpr), u"5"_s);
    QCOMPARE(valueOf(fixture.panel->mCutEveryTxBx), u"5"_s);
    for (const QWidget *control : {static_cast<QWidget *>(fixture.panel->mCutEveryStpr),
                                   static_cast<QWidget *>(fixture.panel->mCutEveryTxBx)}) {
        QCOMPARE(descriptionOf(control), u"A number from 3 to 12."_s);
    }
}

void StepperValueTest::numberIsSetAsByTheUser_data()
{
    QTest::addColumn<QVariant>("set");
    QTest::addColumn<int>("count");
    QTest::newRow("inside") << QVariant(7) << 7;
    QTest::newRow("above") << QVariant(99) << 12;
    QTest::newRow("below") << QVariant(-4) << 3;
    QTest::newRow("beyond 32 bits") << QVariant(qint64(1) << 40) << 12;
}

void StepperValueTest::numberIsSetAsByTheUser()
{
    QFETCH(QVariant, set);
    QFETCH(int, count);
    PanelFixture fixture(printer());
    showEnabled(fixture);
    QAccessibleValueInterface *value = accessOf(fixture.panel->mCutEveryStpr)->valueInterface();
    value->setCurrentValue(set);
    QCOMPARE(value->currentValue().toInt(), count);
    QCOMPARE(fixture.panel->mCutEveryTxBx->text(), QString::number(count));
    QCOMPARE(fixture.takeTold(), QStringList(u"KvCutLabel=%1"_s.arg(count)));
}

void StepperValueTest::actionsMoveTheNumber()
{
    PanelFixture fixture(printer());
    showEnabled(fixture);
    QAccessibleActionInterface *actions = accessOf(fixture.panel->mCutEveryStpr)->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::increaseAction()));
    actions->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(fixture.takeTold(), QStringList(u"KvCutLabel=6"_s));
    actions->doAction(QAccessibleActionInterface::decreaseAction());
    QCOMPARE(fixture.takeTold(), QStringList(u"KvCutLabel=5"_s));
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(fixture.panel->mCutEveryStpr->hasFocus());
}

void StepperValueTest::disabledStepperIsNotMoved()
{
    PanelFixture fixture(printer());
    showEnabled(fixture);
    fixture.click(OptionCatalogue::CutEvery);
    fixture.takeTold();
    QVERIFY(!fixture.panel->mCutEveryStpr->isEnabled());
    QAccessibleInterface *access = accessOf(fixture.panel->mCutEveryStpr);
    QVERIFY(access->state().disabled);
    access->valueInterface()->setCurrentValue(7);
    QVERIFY(!access->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::increaseAction()));
    access->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
    QCOMPARE(fixture.takeTold(), QStringList());
    QCOMPARE(access->valueInterface()->currentValue().toInt(), 5);
}

void StepperValueTest::arrowsAreNamed()
{
    PanelFixture fixture(printer());
    showEnabled(fixture);
    const Stepper *stepper = fixture.panel->mCutEveryStpr;
    QCOMPARE(nameOf(stepper->findChild<QToolButton *>(u"stepUp"_s)), u"Increase"_s);
    QCOMPARE(nameOf(stepper->findChild<QToolButton *>(u"stepDown"_s)), u"Decrease"_s);
}

void StepperValueTest::disabledArrowsShowTheReason()
{
    PanelFixture fixture(printer());
    showEnabled(fixture);
    const Stepper *stepper = fixture.panel->mCutEveryStpr;
    auto *up = stepper->findChild<QToolButton *>(u"stepUp"_s);
    const QString reason =
        u"Available when “%1” is selected."_s.arg(fixture.box(OptionCatalogue::CutEvery)->title());
    QCOMPARE(shownTip(up), u"Increase"_s);
    fixture.click(OptionCatalogue::CutEvery);
    QCOMPARE(shownTip(up), reason);
    QCOMPARE(descriptionOf(stepper), reason);
    fixture.click(OptionCatalogue::CutEvery);
    QCOMPARE(shownTip(up), u"Increase"_s);
}

KV_TEST(StepperValueTest)
#include "tst_steppervalue.moc"
