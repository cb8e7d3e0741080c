// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OwnedProcess.h"

#include <QSize>
#include <QTemporaryDir>

/// An X server without a screen, with a window manager, at a display of its own.
class DisplayServer
{
public:
    /// @param screen is the display's size.
    explicit DisplayServer(const QSize &screen = {1280, 1024});

    /// Starts both and waits until they can be used; the reason when that fails.
    QString open();

    /// The display's name (":1").
    QString name() const { return mName; }

    /// The environment of programs at the display: with a home of their own, too.
    QProcessEnvironment environment() const;

    /// Has xdotool do something at the display; whether it could.
    bool command(const QStringList &arguments) const;

private:
    QString startServer();
    QString startWindowManager();

    QSize mScreen;
    QTemporaryDir mHome;
    QString mName;
    OwnedProcess mServer;
    OwnedProcess mWindowManager;
};
