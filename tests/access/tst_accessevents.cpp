// SPDX-License-Identifier: Apache-2.0
#include "AccessEvents.h"
#include "PanelFixture.h"

/// What assistive technology is told of changes.
class AccessEventsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void otherStripIsTold();
    void reasonsAreTold();
    void selectionIsTold();
    void countIsTold();
    void nothingIsToldWithoutAChange();
    void listenerWhoComesLaterIsToldToo();
};

void AccessEventsTest::otherStripIsTold()
{
    PanelFixture fixture(allOff());
    fixture.show();
    AccessEvents events;
    for (int i = 0; i < 2; ++i) {
        fixture.click(halfCut);
        QCOMPARE(events.take(fixture.panel->mOptionView, QAccessible::DescriptionChanged), 1);
    }
}

void AccessEventsTest::reasonsAreTold()
{
    PanelFixture fixture(allOff());
    fixture.show();
    AccessEvents events;
    fixture.click(OptionCatalogue::SpecialTape);
    for (const Option option :
         {cutEvery, OptionCatalogue::AutoCut, halfCut, OptionCatalogue::ChainPrint}) {
        QCOMPARE(events.take(fixture.box(option), QAccessible::DescriptionChanged), 1);
    }
    QCOMPARE(events.take(fixture.box(mirror), QAccessible::DescriptionChanged), 0);
}

void AccessEventsTest::selectionIsTold()
{
    PanelFixture fixture(
        {.options = everyOptionBut(OptionCatalogue::CutMark), .defaults = {{cutEvery, "7"}}});
    fixture.show();
    PopUpButton *menu = fixture.panel->mOptionPopUpButton;
    AccessEvents events;
    fixture.click(halfCut);
    // Qt tells the text besides, which a menu of pictures has none of.
    QVERIFY(events.takeValues(menu).contains(u"Half cut"_s));
}

void AccessEventsTest::countIsTold()
{
    PanelFixture fixture(allOff());
    fixture.show();
    fixture.click(cutEvery);
    Stepper *stepper = fixture.panel->mCutEveryStpr;
    AccessEvents events;
    fixture.step("stepUp");
    QCOMPARE(events.takeValues(stepper), QStringList(u"8"_s));
    fixture.type(u"42"_s);
    QCOMPARE(events.takeValues(stepper), QStringList({u"4"_s, u"42"_s}));
    stepper->setIntValue(42);
    QCOMPARE(events.take(stepper, QAccessible::ValueChanged), 0);
}

void AccessEventsTest::nothingIsToldWithoutAChange()
{
    PanelFixture fixture(allOff());
    fixture.show();
    AccessEvents events;
    fixture.panel->enabledCheck_OP();
    fixture.panel->updateUI();
    fixture.host->changePaper(u"62x29"_s);
    for (const Option option : everyOption) {
        QCOMPARE(events.take(fixture.box(option), QAccessible::DescriptionChanged), 0);
    }
    QCOMPARE(events.take(fixture.panel->mOptionView, QAccessible::DescriptionChanged), 0);
}

void AccessEventsTest::listenerWhoComesLaterIsToldToo()
{
    AccessEvents::isSomebodyListening = false;
    PanelFixture fixture(allOff());
    fixture.show();
    AccessEvents events;
    fixture.click(halfCut);
    QCOMPARE(events.take(fixture.panel->mOptionView, QAccessible::DescriptionChanged), 0);
    AccessEvents::isSomebodyListening = true;
    QAccessible::setActive(true);
    QCOMPARE(events.take(fixture.panel->mOptionView, QAccessible::DescriptionChanged), 1);
}

KV_TEST(AccessEventsTest)
#include "tst_accessevents.moc"
