// SPDX-License-Identifier: Apache-2.0
#include "DesktopSession.h"

#include "GtkDialog.h"
#include "applications/RemoteUser.h"
#include "applications/Waiting.h"
#include "service/ServiceName.h"

#include <QDBusMessage>
#include <QDir>

#include <algorithm>

namespace {
/// Describes the panel service to session buses, among the data in a folder.
bool describeService(const QString &folder)
{
    const QDir services(folder + u"/dbus-1/services"_s);
    QFile file(services.filePath(u"panels.service"_s));
    const QString text = u"[D-BUS Service]\nName=%1\nExec=%2\n"_s.arg(
        QLatin1String(ServiceName::bus), QStringLiteral(KV_PANEL_SERVICE));
    return services.mkpath(u"."_s) && file.open(QIODevice::WriteOnly) &&
           file.write(text.toUtf8()) > 0;
}
} // namespace

QString DesktopSession::open()
{
    const QString error = mDisplay.open();
    return error.isEmpty() ? mSite.open() : error;
}

QString DesktopSession::begin(const QStringList &variables)
{
    mDocuments = std::make_unique<DocumentPortal>();
    mAccess = std::make_unique<AccessBus>();
    mFolder = std::make_unique<QTemporaryDir>();
    if (!describeService(mFolder->path())) {
        return u"the panel service cannot be described"_s;
    }
    mVariables = gtkVariables(mFolder->path()) + variables;
    mVariables << u"XDG_DATA_DIRS=%1:/usr/share"_s.arg(mFolder->path())
               << u"XDG_CONFIG_HOME="_s + mFolder->filePath(u"settings"_s)
               << u"HOME="_s + QDir::homePath();
    const QString error = mAccess->open(mDisplay, mVariables);
    if (!error.isEmpty()) {
        return error;
    }
    return mDocuments->offer(mAccess->variable().section(u'=', 1))
               ? QString()
               : u"the portal for documents cannot be offered"_s;
}

QProcessEnvironment DesktopSession::environment() const
{
    QProcessEnvironment environment = mDisplay.environment();
    const QStringList variables = mVariables + QStringList{mAccess->variable()};
    for (const QString &variable : variables) {
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }
    return environment;
}

void DesktopSession::start(OwnedProcess &process, const QString &program,
                           const QStringList &arguments) const
{
    process.setProcessEnvironment(environment());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(mFolder->filePath(u"errors"_s));
    process.start(program, arguments);
}

bool DesktopSession::hasPrintDialog(const QString &portal) const
{
    const QString name = u"session"_s;
    const auto question = QDBusMessage::createMethodCall(
        u"org.freedesktop.impl.portal.desktop."_s + portal, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s);
    const QDBusMessage answer =
        QDBusConnection::connectToBus(mAccess->variable().section(u'=', 1), name).call(question);
    QDBusConnection::disconnectFromBus(name);
    return answer.arguments().value(0).toString().contains(u"org.freedesktop.impl.portal.Print"_s);
}

bool DesktopSession::workAt(const QString &title)
{
    mWindow = {u"search"_s, u"--onlyvisible"_s, u"--name"_s, title};
    return waitFor([this] { return activate(); });
}

bool DesktopSession::activate() const
{
    return mDisplay.command(mWindow + QStringList{u"windowactivate"_s, u"--sync"_s});
}

bool DesktopSession::isLeft(int patienceMs) const
{
    return waitFor([this] { return !isThere(); }, patienceMs);
}

bool DesktopSession::isThere() const
{
    // A search fails as well when any window is closed meanwhile.
    constexpr int looks = 4;
    bool isFound = false;
    for (int i = 0; i < looks && !isFound; ++i) {
        isFound = mDisplay.command(mWindow);
    }
    return isFound;
}

bool DesktopSession::press(const QString &keys) const
{
    const QStringList all = keys.split(u' ');
    // The window manager may be busy with another window.
    return waitFor([this] { return activate() || !isThere(); }) && isThere() &&
           std::all_of(all.begin(), all.end(),
                       [this](const QString &key) { return RemoteUser(mDisplay).press(key); });
}

bool DesktopSession::type(const QString &text) const
{
    return RemoteUser(mDisplay).type(text);
}

bool DesktopSession::clickAt(const std::optional<QPoint> &place) const
{
    return place && activate() &&
           mDisplay.command(mWindow + QStringList{u"mousemove"_s, u"--window"_s, u"%1"_s,
                                                  QString::number(place->x()),
                                                  QString::number(place->y()), u"click"_s, u"1"_s});
}

bool DesktopSession::clickNow(const QString &control) const
{
    const AssistiveUser user = this->user();
    // GTK has no such action for some controls.
    return user.clickNow(control) || clickAt(user.placeOf(control));
}

bool DesktopSession::openMenu(const QString &menu) const
{
    return waitFor([&] { return clickAt(user().placeOf(menu, u"combo box"_s)); });
}

bool DesktopSession::replaceText(const QString &change) const
{
    return user().replaceText(change.section(u'=', 0, 0), change.section(u'=', 1));
}

bool DesktopSession::click(const QString &control) const
{
    return waitFor([&] { return clickNow(control); });
}

bool DesktopSession::tick(const QString &box) const
{
    constexpr int effectMs = 1'000;
    const auto isTicked = [&] {
        return user().sees(box, AccessibleObject::State::Checked);
    };
    // The mouse misses a box that moves, as all do while the dialog is laid out.
    return waitFor([&] { return clickNow(box) && waitFor(isTicked, effectMs); });
}

bool DesktopSession::openTab(const QString &tab, const QString &control) const
{
    // It may move while other tabs come and go.
    return waitFor([&] {
        clickNow(tab);
        return user().placeOf(control).has_value();
    });
}
