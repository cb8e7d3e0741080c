// SPDX-License-Identifier: Apache-2.0
#include "toolkit/PopUpButtonAccessible.h"

#include "toolkit/PopUpButton.h"

#include <QAbstractItemView>

PopUpButtonAccessible::PopUpButtonAccessible(PopUpButton *menu)
    : QAccessibleWidget(menu, QAccessible::ComboBox)
{
}

PopUpButton *PopUpButtonAccessible::menu() const
{
    return static_cast<PopUpButton *>(widget());
}

QString PopUpButtonAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? menu()->selectedName() : QAccessibleWidget::text(kind);
}

QAccessible::State PopUpButtonAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.expandable = true;
    state.expanded = menu()->view()->isVisible();
    state.hasPopup = true;
    return state;
}

QAccessibleInterface *PopUpButtonAccessible::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(menu()->view()) : nullptr;
}

int PopUpButtonAccessible::indexOfChild(const QAccessibleInterface *child) const
{
    return child && child->object() == menu()->view() ? 0 : -1;
}

QAccessibleInterface *PopUpButtonAccessible::childAt(int x, int y) const
{
    return menu()->view()->isVisible() && rect().contains(x, y) ? child(0) : nullptr;
}

QStringList PopUpButtonAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (menu()->isEnabled()) {
        names << showMenuAction() << pressAction();
    }
    return names;
}

void PopUpButtonAccessible::doAction(const QString &name)
{
    if (name != showMenuAction() && name != pressAction()) {
        QAccessibleWidget::doAction(name);
    } else if (menu()->view()->isVisible()) {
        menu()->hidePopup();
    } else if (menu()->isEnabled()) {
        menu()->showPopup();
    }
}
