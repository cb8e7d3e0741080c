// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "applications/OwnedProcess.h"
#include "support/QtNames.h"

#include <QDBusConnection>
#include <QTemporaryDir>

/// A session bus at a socket of its own, which knows only the panel service. It ends with this
/// object.
class SessionBus
{
public:
    SessionBus();
    ~SessionBus();
    SessionBus(const SessionBus &) = delete;
    SessionBus &operator=(const SessionBus &) = delete;

    /// Starts it; the reason when that fails.
    ///
    /// @param service the command line that the bus starts the panel service with.
    QString open(const QString &service);

    /// "NAME=VALUE" of the environment variable that leads a program to it.
    QString variable() const { return u"DBUS_SESSION_BUS_ADDRESS="_s + address(); }

    /// A connection of the test's own, under this name.
    QDBusConnection connect(const QString &name) const;

    /// The process id of the panel service; 0 while it does not run.
    qint64 servicePid() const;

private:
    QString address() const { return u"unix:path="_s + mFolder.filePath(u"bus"_s); }

    QTemporaryDir mFolder;
    OwnedProcess mProcess;
};
