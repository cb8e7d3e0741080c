// SPDX-License-Identifier: Apache-2.0
#include "RemoteUser.h"

#include "DisplayServer.h"

namespace {
/// A menu that opens under the mouse takes no click until the mouse has been moved by this much.
constexpr int approach = 12;

QStringList moveTo(const QPoint &place)
{
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}
} // namespace

RemoteUser::RemoteUser(const DisplayServer &display)
    : mDisplay(display)
{
}

bool RemoteUser::click(const QPoint &place) const
{
    return mDisplay.command(moveTo(place + QPoint(approach, 0)) + moveTo(place) +
                            QStringList{QStringLiteral("click"), QStringLiteral("1")});
}

bool RemoteUser::press(const QString &keys) const
{
    return mDisplay.command({QStringLiteral("key"), keys});
}

bool RemoteUser::type(const QString &text) const
{
    return mDisplay.command({QStringLiteral("type"), QStringLiteral("--"), text});
}
