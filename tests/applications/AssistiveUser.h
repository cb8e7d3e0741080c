// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QRect>
#include <QString>
#include <QVariantList>

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
    /// An object of an application's.
    struct Accessible
    {
        QString service;
        QString path;
    };

    explicit AssistiveUser(const QDBusConnection &bus);

    /// Does the action of that name, "Toggle" or "Press", with a control.
    bool act(const QString &control, const QString &action) const;
    /// Puts a text in the place of the one in a field.
    bool replaceText(const QString &field, const QString &text) const;
    /// Clicks a control that is there now by the action that it has for that; false when there is
    /// none with such an action.
    bool clickNow(const QString &control) const;
    /// Whether there is a control now that is ticked.
    bool isTicked(const QString &control) const;
    /// The middle of a control in its window; null unless there is one now that has a place.
    std::optional<QPoint> placeOf(const QString &control) const;

private:
    using Condition = std::function<bool(const Accessible &)>;

    std::optional<QVariantList> call(const Accessible &object, const char *interface,
                                     const char *method, const QVariantList &arguments = {}) const;
    QString nameOf(const Accessible &object) const;
    QList<Accessible> childrenOf(const Accessible &object) const;
    /// The first object from that one downwards that has the name and meets the condition.
    std::optional<Accessible> find(const Accessible &top, const QString &name,
                                   const Condition &isWanted) const;
    /// The first object that has the name, the interface and, unless it is null, the action, after
    /// some time.
    std::optional<Accessible> await(const QString &name, const char *interface,
                                    const QString &action = {}) const;
    /// The rectangle of an object in its window; empty when it has none.
    QRect frameOf(const Accessible &object) const;
    int indexOfAction(const Accessible &object, const QString &action) const;

    QDBusConnection mBus;
};
