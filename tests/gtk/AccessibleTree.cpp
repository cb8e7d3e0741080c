// SPDX-License-Identifier: Apache-2.0
#include "AccessibleTree.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVariant>

namespace {
constexpr char accessible[] = "org.a11y.atspi.Accessible";
constexpr char value[] = "org.a11y.atspi.Value";

// The numbers of states.
constexpr int checkedState = 4;
constexpr int focusedState = 12;
constexpr int sensitiveState = 24;
constexpr int visibleState = 30;
} // namespace

AccessibleTree::AccessibleTree(const QDBusConnection &bus)
    : mBus(bus)
{
}

QVariant AccessibleTree::ask(const Node &node, const char *interface, const char *method,
                             const QVariantList &arguments) const
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        node.service, node.path, QLatin1String(interface), QLatin1String(method));
    message.setArguments(arguments);
    return mBus.call(message).arguments().value(0);
}

QVariant AccessibleTree::property(const Node &node, const char *interface, const char *name) const
{
    return ask(node, "org.freedesktop.DBus.Properties", "Get",
               {QLatin1String(interface), QLatin1String(name)})
        .value<QDBusVariant>()
        .variant();
}

QList<AccessibleTree::Node> AccessibleTree::childrenOf(const Node &node) const
{
    const auto list = ask(node, accessible, "GetChildren").value<QDBusArgument>();
    QList<Node> children;
    if (list.currentType() != QDBusArgument::ArrayType) {
        return children;
    }
    list.beginArray();
    while (!list.atEnd()) {
        Node child;
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

QStringList AccessibleTree::lines() const
{
    QStringList lines;
    addLines({u"org.a11y.atspi.Registry"_s, u"/org/a11y/atspi/accessible/root"_s}, &lines);
    return lines;
}

void AccessibleTree::addLines(const Node &node, QStringList *lines) const
{
    const uint states = qdbus_cast<QList<uint>>(ask(node, accessible, "GetState")).value(0);
    const auto is = [states](int state) {
        return (states >> state & 1U) != 0;
    };
    const QString name = property(node, accessible, "Name").toString();
    if (is(visibleState) && !name.isEmpty()) {
        // The versions of GTK write it differently.
        const QString role = ask(node, accessible, "GetRoleName").toString().remove(u' ');
        QString line = role + u": "_s + name;
        const auto interfaces = ask(node, accessible, "GetInterfaces").toStringList();
        if (interfaces.contains(QLatin1String(value))) {
            line += u" "_s + property(node, value, "CurrentValue").toString();
        }
        line += (is(checkedState) ? u", checked"_s : QString()) +
                (is(focusedState) ? u", focused"_s : QString()) +
                (is(sensitiveState) ? QString() : u", grey"_s);
        const QString description = property(node, accessible, "Description").toString();
        lines->append(description.isEmpty() ? line : line + u"; "_s + description);
    }
    const QList<Node> children = childrenOf(node);
    for (const Node &child : children) {
        addLines(child, lines);
    }
}
