#pragma once

#include "OwnedProcess.h"

#include <QTemporaryDir>

/// An X server without a screen, with a window manager, at a display of its own.
class DisplayServer
{
public:
    /// Starts both and waits until they can be used; the reason when that fails.
    QString open();

    /// The display's name (":1").
    QString name() const { return mName; }

    /// Has xdotool do something at the display; whether it could.
    bool command(const QStringList &arguments) const;

private:
    QString startServer();
    QString startWindowManager();
    QProcessEnvironment environment() const;

    QTemporaryDir mHome;
    QString mName;
    OwnedProcess mServer;
    OwnedProcess mWindowManager;
};
