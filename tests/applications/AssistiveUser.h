// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "AccessibleObject.h"

#include <functional>
#include <optional>

/**
 * A user of assistive technology, who works controls over its bus by their names.
 *
 * A function that does something waits until there is such a control, and answers whether the
 * application has said that it was done.
 */
class AssistiveUser
{
public:
    explicit AssistiveUser(const QDBusConnection &bus);

    /// Does the action of that name, "Toggle" or "Press", with a control.
    bool act(const QString &control, const QString &action) const;
    /// Puts a text in the place of the one in a field.
    bool replaceText(const QString &field, const QString &text) const;
    /// Gives a control the focus of its window.
    bool focus(const QString &control) const;
    /// Clicks a control that is there now by the action that it has for that; false when there is
    /// none with such an action.
    bool clickNow(const QString &control) const;
    /// Whether there is a control now that is in this state.
    bool sees(const QString &control, AccessibleObject::State state) const;
    /// Whether there is a control that is shown and cannot be used now.
    bool seesGrey(const QString &control) const;
    /// The middle of a control in its window; null unless there is one now that has a place.
    ///
    /// @param role as the toolkits write it; empty for any.
    std::optional<QPoint> placeOf(const QString &control, const QString &role = {}) const;

private:
    using Condition = std::function<bool(const AccessibleObject &)>;

    /// The first object now that has the name and meets the condition.
    std::optional<AccessibleObject> find(const QString &name, const Condition &isWanted) const;
    /// The same after some time.
    std::optional<AccessibleObject> await(const QString &name, const Condition &isWanted) const;

    QDBusConnection mBus;
};
