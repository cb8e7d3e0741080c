// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QString>

#include <functional>
#include <memory>
#include <vector>

/// What an observer is told.
struct Notification
{
    QString name;
    /// What the notification is about, compared by address; null when it is about nothing.
    const void *object;
};

/**
 * Tells observers of what happens elsewhere in the process. For the main thread alone.
 *
 * Observers may be added and removed while a notification is being posted: one that is removed is
 * told nothing more, one that is added is told from the next notification on.
 */
class KVPRINTCORE_EXPORT NotificationCenter
{
public:
    using Handler = std::function<void(const Notification &)>;

    NotificationCenter();
    ~NotificationCenter();
    NotificationCenter(const NotificationCenter &) = delete;
    NotificationCenter &operator=(const NotificationCenter &) = delete;

    /// The one centre that the host and every panel share.
    static NotificationCenter &defaultCenter();

    /**
     * Registers an observer, in the order of which observers are told.
     *
     * @param observer whose registration it is, compared by address; must not be null.
     * @param name the notifications' name; null for any name.
     * @param object what the notifications are about; null for anything.
     */
    void addObserver(const void *observer, Handler handler, const QString &name,
                     const void *object = nullptr);

    /// Removes every registration of the observer; does nothing when there is none.
    void removeObserver(const void *observer);

    /// Removes the observer's registrations with that name (null: any) and object (null: any).
    void removeObserver(const void *observer, const QString &name, const void *object);

    /// Tells every observer that is registered for the name and the object.
    void postNotification(const QString &name, const void *object);

private:
    struct Registration;
    std::vector<std::shared_ptr<Registration>> mRegistrations;
};
