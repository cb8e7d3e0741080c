// SPDX-License-Identifier: Apache-2.0
#include "SessionBus.h"

#include "applications/Waiting.h"
#include "service/ServiceName.h"

#include <QDBusConnectionInterface>
#include <QFile>

namespace {
const QString ownConnection = u"session-bus"_s;

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) > 0;
}
} // namespace

SessionBus::SessionBus()
    : mFolder(u"/tmp/bus-XXXXXX"_s)
{
    mProcess.setStandardErrorFile(QProcess::nullDevice());
}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(ownConnection);
}

QString SessionBus::open(const QString &service)
{
    const QString configuration = uR"(<busconfig><type>session</type><listen>%1</listen>
<servicedir>%2</servicedir><auth>EXTERNAL</auth><policy context="default">
<allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/><allow own="*"/></policy>
</busconfig>)"_s.arg(address(), mFolder.path());
    const QString description = u"[D-BUS Service]\nName=%1\nExec=%2\n"_s;
    if (!write(mFolder.filePath(u"bus.conf"_s), configuration) ||
        !write(mFolder.filePath(u"panels.service"_s),
               description.arg(QLatin1String(ServiceName::bus), service))) {
        return u"the bus' files cannot be written"_s;
    }
    mProcess.start(u"dbus-daemon"_s, {u"--nofork"_s, u"--nopidfile"_s, u"--print-address=1"_s,
                                      u"--config-file="_s + mFolder.filePath(u"bus.conf"_s)});
    // It tells its address when it can be used.
    const bool isReady = mProcess.waitForReadyRead(kPatienceMs);
    return isReady && connect(ownConnection).isConnected()
               ? QString()
               : u"dbus-daemon: %1"_s.arg(mProcess.errorString());
}

QDBusConnection SessionBus::connect(const QString &name) const
{
    return QDBusConnection::connectToBus(address(), name);
}

qint64 SessionBus::servicePid() const
{
    const QDBusReply<uint> pid =
        QDBusConnection(ownConnection).interface()->servicePid(QLatin1String(ServiceName::bus));
    return pid.isValid() ? qint64(pid.value()) : 0;
}
