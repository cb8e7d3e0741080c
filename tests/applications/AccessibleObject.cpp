// SPDX-License-Identifier: Apache-2.0
#include "AccessibleObject.h"

#include "Waiting.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <limits>

namespace {
constexpr char accessibleInterface[] = "org.a11y.atspi.Accessible";
constexpr char actionInterface[] = "org.a11y.atspi.Action";
constexpr char componentInterface[] = "org.a11y.atspi.Component";
constexpr char editableTextInterface[] = "org.a11y.atspi.EditableText";
constexpr char valueInterface[] = "org.a11y.atspi.Value";

/// Calls the function at each structure of an array, which it has to read.
template <typename Read>
void forEachIn(const QVariant &array, const Read &read)
{
    const auto list = array.value<QDBusArgument>();
    if (list.currentType() != QDBusArgument::ArrayType) {
        return;
    }
    list.beginArray();
    while (!list.atEnd()) {
        list.beginStructure();
        read(list);
        list.endStructure();
    }
    list.endArray();
}
} // namespace

AccessibleObject AccessibleObject::desktop(const QDBusConnection &bus)
{
    return {bus, u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s};
}

AccessibleObject::AccessibleObject(const QDBusConnection &bus, const QString &service,
                                   const QString &path)
    : mBus(bus)
    , mService(service)
    , mPath(path)
{
}

QVariant AccessibleObject::call(const char *interface, const char *method,
                                const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(mService, mPath, QLatin1String(interface),
                                                          QLatin1String(method));
    message.setArguments(arguments);
    const QDBusMessage answer = mBus.call(message, QDBus::Block, kPatienceMs);
    return answer.type() == QDBusMessage::ReplyMessage ? answer.arguments().value(0) : QVariant();
}

QVariant AccessibleObject::property(const char *interface, const char *name) const
{
    return call("org.freedesktop.DBus.Properties", "Get",
                {QLatin1String(interface), QLatin1String(name)})
        .value<QDBusVariant>()
        .variant();
}

QString AccessibleObject::name() const
{
    return property(accessibleInterface, "Name").toString();
}

QString AccessibleObject::description() const
{
    return property(accessibleInterface, "Description").toString();
}

QString AccessibleObject::role() const
{
    return call(accessibleInterface, "GetRoleName").toString();
}

bool AccessibleObject::is(State state) const
{
    const auto states = qdbus_cast<QList<uint>>(call(accessibleInterface, "GetState"));
    return (states.value(0) >> uint(state) & 1U) != 0;
}

bool AccessibleObject::has(const char *interface) const
{
    return call(accessibleInterface, "GetInterfaces")
        .toStringList()
        .contains(QLatin1String(interface));
}

QVariant AccessibleObject::value() const
{
    return has(valueInterface) ? property(valueInterface, "CurrentValue") : QVariant();
}

QRect AccessibleObject::frame() const
{
    constexpr uint inWindow = 1;
    const auto rectangle =
        call(componentInterface, "GetExtents", {inWindow}).value<QDBusArgument>();
    QRect frame;
    if (rectangle.currentType() == QDBusArgument::StructureType) {
        rectangle >> frame;
    }
    // So tells GTK 3 that a control is not shown.
    return frame.x() == std::numeric_limits<int>::min() ? QRect() : frame;
}

bool AccessibleObject::focus() const
{
    return call(componentInterface, "GrabFocus").toBool();
}

QList<AccessibleObject> AccessibleObject::children() const
{
    QList<AccessibleObject> children;
    forEachIn(call(accessibleInterface, "GetChildren"), [&](const QDBusArgument &child) {
        QString service;
        QDBusObjectPath path;
        child >> service >> path;
        children.append(AccessibleObject(mBus, service, path.path()));
    });
    return children;
}

int AccessibleObject::indexOfAction(const QString &action) const
{
    QStringList actions;
    forEachIn(call(actionInterface, "GetActions"), [&](const QDBusArgument &offered) {
        QString name;
        QString description;
        QString keys;
        offered >> name >> description >> keys;
        actions.append(name);
    });
    return int(actions.indexOf(action));
}

bool AccessibleObject::act(int action) const
{
    return call(actionInterface, "DoAction", {action}).toBool();
}

bool AccessibleObject::replaceText(const QString &text) const
{
    return call(editableTextInterface, "SetTextContents", {text}).toBool();
}
