// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QString>
#include <QVariantList>

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

private:
    /// An object of an application's.
    struct Accessible
    {
        QString service;
        QString path;
    };

    std::optional<QVariantList> call(const Accessible &object, const char *interface,
                                     const char *method, const QVariantList &arguments = {}) const;
    QString nameOf(const Accessible &object) const;
    QList<Accessible> childrenOf(const Accessible &object) const;
    /// The first object from that one downwards that has the name, the interface and, unless it is
    /// null, the action.
    std::optional<Accessible> find(const Accessible &top, const QString &name,
                                   const char *interface, const QString &action) const;
    std::optional<Accessible> await(const QString &name, const char *interface,
                                    const QString &action = {}) const;
    int indexOfAction(const Accessible &object, const QString &action) const;

    QDBusConnection mBus;
};
