// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QObject>

/// Gives the widgets of a class an interface of their own for assistive technology, for as long as
/// the registration lives.
template <typename Widget, typename Interface>
class AccessibleRegistration
{
public:
    AccessibleRegistration() { QAccessible::installFactory(make); }
    ~AccessibleRegistration() { QAccessible::removeFactory(make); }
    AccessibleRegistration(const AccessibleRegistration &) = delete;
    AccessibleRegistration &operator=(const AccessibleRegistration &) = delete;

private:
    static QAccessibleInterface *make(const QString &, QObject *object)
    {
        auto *widget = qobject_cast<Widget *>(object);
        return widget ? new Interface(widget) : nullptr;
    }
};
