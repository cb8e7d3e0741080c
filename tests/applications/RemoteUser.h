// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPoint>
#include <QString>

class DisplayServer;

/// Works whatever is at a display with mouse and keyboard.
class RemoteUser
{
public:
    /// @param display must outlive the user.
    explicit RemoteUser(const DisplayServer &display);

    /// Moves the mouse there and clicks.
    bool click(const QPoint &place) const;
    /// Presses a key, or several at once ("ctrl+p").
    bool press(const QString &keys) const;
    /// Types a text where the focus is.
    bool type(const QString &text) const;

private:
    const DisplayServer &mDisplay;
};
