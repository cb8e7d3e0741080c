// SPDX-License-Identifier: Apache-2.0
#include "AccessTree.h"
#include "PanelDialog.h"

#include <QAbstractItemView>

/// The names, roles and states that assistive technology is told.
class NamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyControlIsNamedAndDescribed();
    void dialogsTreeHoldsEveryControl();
    void hiddenControlsAreInvisible();
    void boxTellsItsState();
    void menuTellsItsSelectionByName();
    void menuItemsHaveNames();
    void menuOpensAndClosesByAction();
    void greyedItemSaysWhy();
    void textsWithoutATableAreTheirKeys();
};

namespace {
struct Expected
{
    const QWidget *control;
    QAccessible::Role role;
    QString name;
};

QList<Expected> everyControlOf(const PanelFixture &fixture)
{
    const auto text = [&fixture](const char *key) {
        return fixture.bundle->localizedStringForKey(QLatin1String(key));
    };
    const RecordingPanel &panel = *fixture.panel;
    QList<Expected> all = {
        {panel.mCutEveryTxBx, QAccessible::EditableText, text("RS_CutEveryCount")},
        {panel.mCutEveryStpr, QAccessible::SpinBox, text("RS_CutEveryCount")},
        {panel.mCutEveryStr, QAccessible::StaticText, text("RS_Labels")},
        {panel.mOptionPopUpButton, QAccessible::ComboBox, text("RS_Presets")},
        {panel.mOptionView, QAccessible::Graphic, text("RS_Preview")},
    };
    for (const Option option : everyOption) {
        const QString title = QString::fromUtf8(panel.option(option)->text);
        all.append({fixture.box(option), QAccessible::CheckBox, title});
    }
    return all;
}
} // namespace

void NamesTest::everyControlIsNamedAndDescribed()
{
    PanelFixture fixture;
    fixture.show();
    const QList<Expected> all = everyControlOf(fixture);
    QCOMPARE(all.size(), 14);
    QSet<QString> descriptions;
    for (const Expected &expected : all) {
        QAccessibleInterface *access = accessOf(expected.control);
        QVERIFY(access);
        QCOMPARE(access->role(), expected.role);
        QCOMPARE(access->text(QAccessible::Name), expected.name);
        QVERIFY(!access->text(QAccessible::Name).isEmpty());
        const QString description = descriptionOf(expected.control);
        QVERIFY2(description.contains(u' ') && description.endsWith(u'.'),
                 qPrintable(u"%1: %2"_s.arg(expected.name, description)));
        QVERIFY(!access->state().invisible);
        descriptions.insert(description);
    }
    // The field, its stepper and its caption have one in common.
    QCOMPARE(descriptions.size(), all.size() - 2);
}

void NamesTest::dialogsTreeHoldsEveryControl()
{
    PanelFixture fixture;
    PanelDialog dialog(fixture);
    QVERIFY(dialog.isReady());
    const auto objects = objectsBelow(accessOf(&dialog.dialog()));
    const QList<Expected> all = everyControlOf(fixture);
    for (const Expected &expected : all) {
        QVERIFY2(objects.contains(expected.control), qPrintable(expected.name));
    }
}

void NamesTest::hiddenControlsAreInvisible()
{
    PanelFixture fixture({.options = {OptionCatalogue::Mirror}});
    fixture.show();
    QVERIFY(!accessOf(fixture.box(OptionCatalogue::Mirror))->state().invisible);
    QVERIFY(accessOf(fixture.box(OptionCatalogue::HalfCut))->state().invisible);
    QVERIFY(accessOf(fixture.panel->mCutEveryStpr)->state().invisible);
}

void NamesTest::boxTellsItsState()
{
    PanelFixture fixture;
    fixture.show();
    const QAccessibleInterface *halfCut = accessOf(fixture.box(OptionCatalogue::HalfCut));
    QVERIFY(halfCut->state().checkable);
    QVERIFY(halfCut->state().focusable);
    QVERIFY(!halfCut->state().checked);
    QVERIFY(!halfCut->state().disabled);
    fixture.click(OptionCatalogue::HalfCut);
    QVERIFY(halfCut->state().checked);
    fixture.click(OptionCatalogue::SpecialTape);
    QVERIFY(halfCut->state().disabled);
}

void NamesTest::menuTellsItsSelectionByName()
{
    PanelFixture fixture({.options = everyOptionBut(OptionCatalogue::CutMark),
                          .defaults = {{OptionCatalogue::CutEvery, "7"}}});
    fixture.show();
    PopUpButton *menu = fixture.panel->mOptionPopUpButton;
    QCOMPARE(valueOf(menu), u"No automatic cutting"_s);
    fixture.click(OptionCatalogue::HalfCut);
    QCOMPARE(valueOf(menu), u"Half cut"_s);
    QCOMPARE(menu->toolTip(), u"Half cut"_s);
}

void NamesTest::menuItemsHaveNames()
{
    PanelFixture fixture;
    fixture.show();
    const PopUpButton *menu = fixture.panel->mOptionPopUpButton;
    QAccessibleInterface *access = accessOf(menu);
    QCOMPARE(access->childCount(), 1);
    QAccessibleInterface *list = access->child(0);
    QCOMPARE(list->object(), menu->view());
    QCOMPARE(access->indexOfChild(list), 0);
    QCOMPARE(list->childCount(), menu->count());
    QSet<QString> names;
    for (int i = 0; i < menu->count(); ++i) {
        QCOMPARE(list->child(i)->text(QAccessible::Name), menu->itemName(i));
        names.insert(menu->itemName(i));
    }
    QCOMPARE(names.size(), menu->count());
    QVERIFY(!names.contains(QString()));
}

void NamesTest::menuOpensAndClosesByAction()
{
    PanelFixture fixture;
    fixture.show();
    PopUpButton *menu = fixture.panel->mOptionPopUpButton;
    QAccessibleInterface *access = accessOf(menu);
    QVERIFY(access->state().hasPopup && access->state().expandable && !access->state().expanded);
    QAccessibleActionInterface *actions = access->actionInterface();
    QVERIFY(actions->actionNames().contains(QAccessibleActionInterface::showMenuAction()));
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(menu->view()->isVisible());
    QVERIFY(access->state().expanded);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QVERIFY(!menu->view()->isVisible());
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QVERIFY(menu->hasFocus());
    menu->setEnabled(false);
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    QVERIFY(!menu->view()->isVisible());
}

void NamesTest::greyedItemSaysWhy()
{
    PanelFixture fixture({.options = everyOptionBut(OptionCatalogue::CutMark)});
    fixture.show();
    PopUpButton *menu = fixture.panel->mOptionPopUpButton;
    const auto tagsWithReason = [&fixture, menu] {
        menu->showPopup();
        menu->hidePopup();
        QList<int> tags;
        for (int i = 0; i < menu->count(); ++i) {
            const QString reason = menu->itemData(i, Qt::AccessibleDescriptionRole).toString();
            const QString name = menu->itemName(i);
            const QString tip = menu->itemData(i, Qt::ToolTipRole).toString();
            if (reason.isEmpty() ? tip != name : tip != name + u'\n' + reason) {
                return QList<int>{-1};
            }
            if (reason == u"Not available on this tape.") {
                tags.append(fixture.menuTags().at(i));
            }
        }
        return tags;
    };
    QCOMPARE(tagsWithReason(), QList<int>());
    fixture.host->changePaper(u"FL30"_s);
    QCOMPARE(tagsWithReason(), QList<int>({6, 7, 8, 10, 11, 12, 13}));
    fixture.host->changePaper(u"62x29"_s);
    QCOMPARE(tagsWithReason(), QList<int>());
}

void NamesTest::textsWithoutATableAreTheirKeys()
{
    PanelFixture fixture;
    fixture.bundle->setLanguages({});
    fixture.show();
    fixture.click(OptionCatalogue::SpecialTape);
    QCOMPARE(descriptionOf(fixture.box(OptionCatalogue::HalfCut)), u"RS_Why_Together"_s);
    QCOMPARE(descriptionOf(fixture.box(OptionCatalogue::Mirror)), u"RS_Help_Mirror"_s);
    QCOMPARE(descriptionOf(fixture.panel->mOptionView), u"RS_Strip_SpecialTape"_s);
}

KV_TEST(NamesTest)
#include "tst_names.moc"
