// SPDX-License-Identifier: Apache-2.0
#include "AssistiveUser.h"

#include "Waiting.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

#include <algorithm>

namespace {
constexpr char accessibleInterface[] = "org.a11y.atspi.Accessible";
constexpr char actionInterface[] = "org.a11y.atspi.Action";
constexpr char componentInterface[] = "org.a11y.atspi.Component";
constexpr char editableTextInterface[] = "org.a11y.atspi.EditableText";
constexpr char propertiesInterface[] = "org.freedesktop.DBus.Properties";

/// All applications.
const AssistiveUser::Accessible desktop = {u"org.a11y.atspi.Registry"_s,
                                           u"/org/a11y/atspi/accessible/root"_s};

QDBusArgument listIn(const std::optional<QVariantList> &answer)
{
    return answer && !answer->isEmpty() ? answer->constFirst().value<QDBusArgument>()
                                        : QDBusArgument();
}

bool isTrue(const std::optional<QVariantList> &answer)
{
    return answer && !answer->isEmpty() && answer->constFirst().toBool();
}
} // namespace

AssistiveUser::AssistiveUser(const QDBusConnection &bus)
    : mBus(bus)
{
}

std::optional<QVariantList> AssistiveUser::call(const Accessible &object, const char *interface,
                                                const char *method,
                                                const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        object.service, object.path, QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    const QDBusMessage answer = mBus.call(message, QDBus::Block, kPatienceMs);
    return answer.type() == QDBusMessage::ReplyMessage
               ? std::optional<QVariantList>(answer.arguments())
               : std::nullopt;
}

QString AssistiveUser::nameOf(const Accessible &object) const
{
    const auto answer =
        call(object, propertiesInterface, "Get", {QLatin1String(accessibleInterface), u"Name"_s});
    return answer && !answer->isEmpty()
               ? answer->constFirst().value<QDBusVariant>().variant().toString()
               : QString();
}

QList<AssistiveUser::Accessible> AssistiveUser::childrenOf(const Accessible &object) const
{
    const QDBusArgument list = listIn(call(object, accessibleInterface, "GetChildren"));
    QList<Accessible> children;
    if (list.currentType() != QDBusArgument::ArrayType) {
        return children;
    }
    list.beginArray();
    while (!list.atEnd()) {
        Accessible child;
        QDBusObjectPath path;
        list.beginStructure();
        list >> child.service >> path;
        list.endStructure();
        child.path = path.path();
        children.append(child);
    }
    list.endArray();
    return children;
}

std::optional<AssistiveUser::Accessible>
AssistiveUser::find(const Accessible &top, const QString &name, const Condition &isWanted) const
{
    if (nameOf(top) == name && isWanted(top)) {
        return top;
    }
    const QList<Accessible> children = childrenOf(top);
    for (const Accessible &child : children) {
        if (const auto found = find(child, name, isWanted)) {
            return found;
        }
    }
    return std::nullopt;
}

std::optional<AssistiveUser::Accessible>
AssistiveUser::await(const QString &name, const char *interface, const QString &action) const
{
    const auto isWanted = [&](const Accessible &object) {
        const auto interfaces = call(object, accessibleInterface, "GetInterfaces");
        return interfaces &&
               interfaces->value(0).toStringList().contains(QLatin1String(interface)) &&
               (action.isNull() || indexOfAction(object, action) >= 0);
    };
    std::optional<Accessible> found;
    waitFor([&] {
        found = find(desktop, name, isWanted);
        return found.has_value();
    });
    return found;
}

int AssistiveUser::indexOfAction(const Accessible &object, const QString &action) const
{
    const QDBusArgument list = listIn(call(object, actionInterface, "GetActions"));
    if (list.currentType() != QDBusArgument::ArrayType) {
        return -1;
    }
    QStringList actions;
    list.beginArray();
    while (!list.atEnd()) {
        QString name;
        QString description;
        QString keys;
        list.beginStructure();
        list >> name >> description >> keys;
        list.endStructure();
        actions.append(name);
    }
    list.endArray();
    return int(actions.indexOf(action));
}

bool AssistiveUser::act(const QString &control, const QString &action) const
{
    const auto object = await(control, actionInterface, action);
    const int index = object ? indexOfAction(*object, action) : -1;
    return index >= 0 && isTrue(call(*object, actionInterface, "DoAction", {index}));
}

bool AssistiveUser::replaceText(const QString &field, const QString &text) const
{
    const auto object = await(field, editableTextInterface);
    return object && isTrue(call(*object, editableTextInterface, "SetTextContents", {text}));
}

bool AssistiveUser::clickNow(const QString &control) const
{
    int index = -1;
    const auto canBeClicked = [this, &index](const Accessible &object) {
        index = -1;
        for (const QString &action : {u"Click"_s, u"Press"_s, u"Toggle"_s}) {
            index = std::max(index, indexOfAction(object, action));
        }
        return index >= 0;
    };
    const auto object = find(desktop, control, canBeClicked);
    return object && isTrue(call(*object, actionInterface, "DoAction", {index}));
}

bool AssistiveUser::isTicked(const QString &control) const
{
    constexpr uint checked = 1U << 4U;
    const auto hasTick = [this](const Accessible &object) {
        const auto states = call(object, accessibleInterface, "GetState");
        return states && (qdbus_cast<QList<uint>>(states->value(0)).value(0) & checked) != 0;
    };
    return find(desktop, control, hasTick).has_value();
}

QRect AssistiveUser::frameOf(const Accessible &object) const
{
    constexpr uint inWindow = 1;
    const QDBusArgument rectangle =
        listIn(call(object, componentInterface, "GetExtents", {inWindow}));
    QRect frame;
    if (rectangle.currentType() == QDBusArgument::StructureType) {
        rectangle >> frame;
    }
    return frame;
}

std::optional<QPoint> AssistiveUser::placeOf(const QString &control) const
{
    QRect frame;
    const auto hasPlace = [this, &frame](const Accessible &object) {
        frame = frameOf(object);
        return !frame.isEmpty();
    };
    return find(desktop, control, hasPlace) ? std::optional<QPoint>(frame.center()) : std::nullopt;
}
