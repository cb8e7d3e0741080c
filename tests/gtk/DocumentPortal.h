// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QThread>

/// Takes the place of the portal for documents of sandboxed applications on a session bus, which
/// would mount a file system: the desktops' portals do not start without it.
class DocumentPortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Documents")
    Q_PROPERTY(uint version READ version SCRIPTABLE true)

public:
    DocumentPortal();
    ~DocumentPortal() override;

    /// Takes its place on the session bus at this address; whether it could.
    bool offer(const QString &address);

    static uint version() { return 1; }

public Q_SLOTS:
    Q_SCRIPTABLE static QByteArray GetMountPoint();

private:
    /// Answers while a test waits for a program.
    QThread mThread;
};
