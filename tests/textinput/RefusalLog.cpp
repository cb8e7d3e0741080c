// SPDX-License-Identifier: Apache-2.0
#include "RefusalLog.h"

#include "printcore/Beep.h"
#include "printcore/NotificationCenter.h"
#include "textinput/PDEFormatter.h"

#include <utility>

RefusalLog::RefusalLog()
{
    setBeeper([this] { ++mBeeps; });
    const auto note = [this](const Notification &notification) {
        const QString *character = PDEFormatter::offendingCharacter(notification);
        mTold.append(character ? notification.name + u' ' + *character : notification.name);
        mLastObject = notification.object;
    };
    NotificationCenter &center = NotificationCenter::defaultCenter();
    center.addObserver(this, note, InvalidCharacterNotification);
    center.addObserver(this, note, FormatErrorNotification);
}

RefusalLog::~RefusalLog()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    setBeeper({});
}

QStringList RefusalLog::taken()
{
    return std::exchange(mTold, {});
}

int RefusalLog::takenBeeps()
{
    return std::exchange(mBeeps, 0);
}
