// SPDX-License-Identifier: Apache-2.0
#include "printcore/NotificationCenter.h"

#include <algorithm>
#include <iterator>
#include <utility>

struct NotificationCenter::Registration
{
    const void *observer;
    Handler handler;
    QString name;
    const void *object;
    bool removed = false;

    bool wants(const Notification &notification) const
    {
        return !removed && (name.isNull() || name == notification.name) &&
               (!object || object == notification.object);
    }
};

NotificationCenter::NotificationCenter() = default;
NotificationCenter::~NotificationCenter() = default;

NotificationCenter &NotificationCenter::defaultCenter()
{
    // Never destroyed: observers with static storage may remove themselves after main().
    static NotificationCenter *const center = new NotificationCenter;
    return *center;
}

void NotificationCenter::addObserver(const void *observer, Handler handler, const QString &name,
                                     const void *object)
{
    Q_ASSERT(observer);
    Q_ASSERT(handler);
    mRegistrations.push_back(
        std::make_shared<Registration>(Registration{observer, std::move(handler), name, object}));
}

void NotificationCenter::removeObserver(const void *observer)
{
    removeObserver(observer, {}, nullptr);
}

void NotificationCenter::removeObserver(const void *observer, const QString &name,
                                        const void *object)
{
    const auto stays = [&](const std::shared_ptr<Registration> &registration) {
        return registration->observer != observer ||
               (!name.isNull() && registration->name != name) ||
               (object && registration->object != object);
    };
    // What a handler holds may remove further observers when it is destroyed, so that must not
    // happen before the list is in order again.
    std::vector<std::shared_ptr<Registration>> remaining;
    std::vector<std::shared_ptr<Registration>> removed;
    std::partition_copy(std::make_move_iterator(mRegistrations.begin()),
                        std::make_move_iterator(mRegistrations.end()),
                        std::back_inserter(remaining), std::back_inserter(removed), stays);
    mRegistrations = std::move(remaining);
    for (const std::shared_ptr<Registration> &registration : removed) {
        registration->removed = true;
    }
}

void NotificationCenter::postNotification(const QString &name, const void *object)
{
    const Notification notification{name, object};
    const std::vector<std::shared_ptr<Registration>> registrations = mRegistrations;
    for (const std::shared_ptr<Registration> &registration : registrations) {
        if (registration->wants(notification)) {
            registration->handler(notification);
        }
    }
}
