// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

class PopUpButton;

/// A menu of pictures as assistive technology sees it: a combo box whose value is the name of the
/// selected item, with the list of its items as its only child.
class PopUpButtonAccessible : public QAccessibleWidget
{
public:
    explicit PopUpButtonAccessible(PopUpButton *menu);

    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;

    int childCount() const override { return 1; }
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;

    QStringList actionNames() const override;
    /// Opens the list, or closes it when it is open.
    void doAction(const QString &name) override;

private:
    PopUpButton *menu() const;
};
