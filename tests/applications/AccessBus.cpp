// SPDX-License-Identifier: Apache-2.0
#include "AccessBus.h"

#include "DisplayServer.h"
#include "Waiting.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>

#include <csignal>

namespace {
const QString sessionConnection = u"access-session"_s;
const QString accessConnection = u"access"_s;
const QString service = u"org.a11y.Bus"_s;
const QString path = u"/org/a11y/bus"_s;
} // namespace

AccessBus::AccessBus()
    : mFolder(u"/tmp/access-XXXXXX"_s)
{
    mSessionBus.setStandardErrorFile(QProcess::nullDevice());
}

AccessBus::~AccessBus()
{
    endPortals();
    mBus.reset();
    QDBusConnection::disconnectFromBus(accessConnection);
    QDBusConnection::disconnectFromBus(sessionConnection);
}

void AccessBus::endPortals() const
{
    const QDBusConnection session(sessionConnection);
    if (!session.isConnected()) {
        return;
    }
    const QStringList names = session.interface()->registeredServiceNames();
    for (const QString &name : names) {
        if (name.startsWith(u"org.freedesktop.impl.portal.desktop."_s)) {
            const QDBusReply<uint> pid = session.interface()->servicePid(name);
            if (pid.isValid()) {
                kill(pid_t(pid.value()), SIGKILL);
            }
        }
    }
}

QString AccessBus::socket() const
{
    return u"unix:path="_s + mFolder.filePath(u"session"_s);
}

QString AccessBus::variable() const
{
    return u"DBUS_SESSION_BUS_ADDRESS="_s + socket();
}

QString AccessBus::open(const DisplayServer &display, const QStringList &variables)
{
    const QString error = startSessionBus(display, variables);
    return error.isEmpty() ? connectToAccessBus() : error;
}

QString AccessBus::startSessionBus(const DisplayServer &display, const QStringList &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *folder : {"HOME", "XDG_RUNTIME_DIR"}) {
        environment.insert(QLatin1String(folder), mFolder.path());
    }
    environment.insert(u"DISPLAY"_s, display.name());
    environment.insert(u"GSETTINGS_BACKEND"_s, u"memory"_s);
    for (const QString &variable : variables) {
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }
    mSessionBus.setProcessEnvironment(environment);
    mSessionBus.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--nopidfile"_s,
                                         u"--print-address=1"_s, u"--address="_s + socket()});
    // It tells its address when it can be used.
    const bool isReady = mSessionBus.waitForReadyRead(kPatienceMs);
    return isReady ? QString() : u"dbus-daemon: %1"_s.arg(mSessionBus.errorString());
}

QString AccessBus::connectToAccessBus()
{
    const QDBusConnection session = QDBusConnection::connectToBus(socket(), sessionConnection);
    QDBusMessage enable = QDBusMessage::createMethodCall(
        service, path, u"org.freedesktop.DBus.Properties"_s, u"Set"_s);
    enable << u"org.a11y.Status"_s << u"IsEnabled"_s << QVariant::fromValue(QDBusVariant(true));
    const QDBusMessage address =
        session.call(QDBusMessage::createMethodCall(service, path, service, u"GetAddress"_s));
    for (const QDBusMessage &answer : {session.call(enable), address}) {
        if (answer.type() != QDBusMessage::ReplyMessage) {
            return u"org.a11y.Bus: %1"_s.arg(answer.errorMessage());
        }
    }
    mBus = QDBusConnection::connectToBus(address.arguments().constFirst().toString(),
                                         accessConnection);
    return mBus->isConnected() ? QString() : mBus->lastError().message();
}

bool AccessBus::hasApplications() const
{
    QDBusMessage count = QDBusMessage::createMethodCall(
        u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s,
        u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    count << u"org.a11y.atspi.Accessible"_s << u"ChildCount"_s;
    const QVariant answer = mBus->call(count).arguments().value(0);
    return answer.value<QDBusVariant>().variant().toInt() > 0;
}
