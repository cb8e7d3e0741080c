// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QList>
#include <QPointer>
#include <QStringList>

/// Records what the panel and Qt have to tell assistive technology while it lives.
class AccessEvents
{
public:
    AccessEvents();
    ~AccessEvents();
    AccessEvents(const AccessEvents &) = delete;
    AccessEvents &operator=(const AccessEvents &) = delete;

    /// Whether there is assistive technology that asks and is told.
    static inline bool isSomebodyListening = true;

    /// How often the object has told an event of that type since the last call.
    int take(const QObject *object, QAccessible::Event type);

    /// The values that the object has told since the last call.
    QStringList takeValues(const QObject *object);

    /// Notes an event for the recorder that lives, if any.
    static void note(const QAccessibleEvent &event);

private:
    struct Told
    {
        QPointer<QObject> object;
        QAccessible::Event type;
        QString value;
    };

    QList<Told> mTold;
};
