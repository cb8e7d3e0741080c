// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QList>
#include <QRect>
#include <QString>
#include <QVariant>

/// An object that an application tells assistive technology of. Questions to one that is gone have
/// empty answers.
class AccessibleObject
{
public:
    /// The numbers that AT-SPI gives the states.
    enum class State {
        Checked = 4,
        Focused = 12,
        Sensitive = 24,
        Visible = 30,
    };

    /// The object above all applications.
    ///
    /// @param bus of assistive technology.
    static AccessibleObject desktop(const QDBusConnection &bus);

    QString name() const;
    QString description() const;
    /// As the application's toolkit writes it.
    QString role() const;
    bool is(State state) const;
    bool has(const char *interface) const;
    /// The number that the control shows; null when it shows none.
    QVariant value() const;
    /// The rectangle in its window, in pixels; empty when it has none or is not shown.
    QRect frame() const;
    QList<AccessibleObject> children() const;

    /// The place of the action with that name, counted from 0; -1 when there is none.
    int indexOfAction(const QString &action) const;
    /// Does that action; false unless the application says that it was done.
    bool act(int action) const;
    /// Gives it the focus of its window; false unless the application says so.
    bool focus() const;
    /// Puts a text in the place of the one in a field; false unless the application says so.
    bool replaceText(const QString &text) const;

private:
    AccessibleObject(const QDBusConnection &bus, const QString &service, const QString &path);

    /// The first value that is answered; invalid without an answer.
    QVariant call(const char *interface, const char *method,
                  const QVariantList &arguments = {}) const;
    QVariant property(const char *interface, const char *name) const;

    QDBusConnection mBus;
    QString mService;
    QString mPath;
};
