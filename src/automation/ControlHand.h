// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QAbstractButton;
class QWidget;

/**
 * Works the controls of a panel's view with mouse and keyboard, as a user does.
 *
 * Controls are told apart by object name. Each function answers whether there was a control to
 * work, neither hidden nor disabled.
 */
class ControlHand
{
public:
    /// @param view the panel's; must outlive this object.
    explicit ControlHand(QWidget *view);

    /// Clicks a check box.
    bool click(const QString &box) const;
    /// Opens a menu and picks the item with that user data; false when it is disabled.
    bool pick(const QString &menu, int tag) const;
    /// Replaces the whole text of a field in one edit.
    bool type(const QString &field, const QString &text) const;
    /// Clicks a stepper's upper arrow when @p up, else its lower one.
    bool step(const QString &stepper, bool up) const;

private:
    /// The control, if it can be worked; null otherwise.
    template <typename Control>
    Control *workable(const QString &name) const;

    QWidget *mView;
};
