// SPDX-License-Identifier: Apache-2.0
#include "AccessBus.h"

#include "DisplayServer.h"
#include "Waiting.h"

#include <QDBusMessage>
#include <QDBusVariant>

namespace {
const QString sessionConnection = QStringLiteral("access-session");
const QString accessConnection = QStringLiteral("access");
const QString service = QStringLiteral("org.a11y.Bus");
const QString path = QStringLiteral("/org/a11y/bus");
} // namespace

AccessBus::AccessBus()
    : mFolder(QStringLiteral("/tmp/access-XXXXXX"))
{
    mSessionBus.setStandardErrorFile(QProcess::nullDevice());
}

AccessBus::~AccessBus()
{
    mBus.reset();
    QDBusConnection::disconnectFromBus(accessConnection);
    QDBusConnection::disconnectFromBus(sessionConnection);
}

QString AccessBus::socket() const
{
    return QStringLiteral("unix:path=") + mFolder.filePath(QStringLiteral("session"));
}

QString AccessBus::variable() const
{
    return QStringLiteral("DBUS_SESSION_BUS_ADDRESS=") + socket();
}

QString AccessBus::open(const DisplayServer &display)
{
    const QString error = startSessionBus(display);
    return error.isEmpty() ? connectToAccessBus() : error;
}

QString AccessBus::startSessionBus(const DisplayServer &display)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *folder : {"HOME", "XDG_RUNTIME_DIR"}) {
        environment.insert(QLatin1String(folder), mFolder.path());
    }
    environment.insert(QStringLiteral("DISPLAY"), display.name());
    environment.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
    mSessionBus.setProcessEnvironment(environment);
    mSessionBus.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--nopidfile"), QStringLiteral("--print-address=1"),
                       QStringLiteral("--address=") + socket()});
    // It tells its address when it can be used.
    const bool isReady = mSessionBus.waitForReadyRead(kPatienceMs);
    return isReady ? QString() : QStringLiteral("dbus-daemon: %1").arg(mSessionBus.errorString());
}

QString AccessBus::connectToAccessBus()
{
    const QDBusConnection session = QDBusConnection::connectToBus(socket(), sessionConnection);
    QDBusMessage enable = QDBusMessage::createMethodCall(
        service, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Set"));
    enable << QStringLiteral("org.a11y.Status") << QStringLiteral("IsEnabled")
           << QVariant::fromValue(QDBusVariant(true));
    const QDBusMessage address = session.call(
        QDBusMessage::createMethodCall(service, path, service, QStringLiteral("GetAddress")));
    for (const QDBusMessage &answer : {session.call(enable), address}) {
        if (answer.type() != QDBusMessage::ReplyMessage) {
            return QStringLiteral("org.a11y.Bus: %1").arg(answer.errorMessage());
        }
    }
    mBus = QDBusConnection::connectToBus(address.arguments().constFirst().toString(),
                                         accessConnection);
    return mBus->isConnected() ? QString() : mBus->lastError().message();
}

bool AccessBus::hasApplications() const
{
    QDBusMessage count = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.atspi.Registry"),
        QStringLiteral("/org/a11y/atspi/accessible/root"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    count << QStringLiteral("org.a11y.atspi.Accessible") << QStringLiteral("ChildCount");
    const QVariant answer = mBus->call(count).arguments().value(0);
    return answer.value<QDBusVariant>().variant().toInt() > 0;
}
