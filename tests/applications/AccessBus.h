// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "OwnedProcess.h"

#include <QDBusConnection>
#include <QTemporaryDir>

#include <optional>

class DisplayServer;

/// The bus of assistive technology, and the session bus that leads applications to it, on sockets
/// in a folder of their own. They end with this object.
class AccessBus
{
public:
    AccessBus();
    ~AccessBus();
    AccessBus(const AccessBus &) = delete;
    AccessBus &operator=(const AccessBus &) = delete;

    /// Starts both, and has applications told that assistive technology is there; the reason when
    /// that fails. The display's root window names the bus: Qt 5 may not wait for the session bus
    /// to tell its address.
    ///
    /// @param variables "NAME=VALUE" of the environment of what the session bus starts, besides the
    ///        display's.
    QString open(const DisplayServer &display, const QStringList &variables = {});

    /// Whether an application has told assistive technology of itself.
    bool hasApplications() const;

    /// "NAME=VALUE" of the environment variable that leads an application to the session bus.
    QString variable() const;

    /// The bus of assistive technology; only after open().
    const QDBusConnection &bus() const { return *mBus; }

private:
    /// Ends the desktops' portals: that of KDE does not end with its bus.
    void endPortals() const;
    QString socket() const;
    QString startSessionBus(const DisplayServer &display, const QStringList &variables);
    QString connectToAccessBus();

    QTemporaryDir mFolder;
    OwnedProcess mSessionBus;
    std::optional<QDBusConnection> mBus;
};
