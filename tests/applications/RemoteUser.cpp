// SPDX-License-Identifier: Apache-2.0
#include "RemoteUser.h"

#include "DisplayServer.h"

namespace {
/// A menu that opens under the mouse takes no click until the mouse has been moved by this much.
constexpr int approach = 12;

QStringList moveTo(const QPoint &place)
{
    return {u"mousemove"_s, QString::number(place.x()), QString::number(place.y())};
}
} // namespace

RemoteUser::RemoteUser(const DisplayServer &display)
    : mDisplay(display)
{
}

bool RemoteUser::click(const QPoint &place) const
{
    return mDisplay.command(moveTo(place + QPoint(approach, 0)) + moveTo(place) +
                            QStringList{u"click"_s, u"1"_s});
}

bool RemoteUser::press(const QString &keys) const
{
    return mDisplay.command({u"key"_s, keys});
}

bool RemoteUser::type(const QString &text) const
{
    return mDisplay.command({u"type"_s, u"--"_s, text});
}
