// SPDX-License-Identifier: Apache-2.0
#include "AccessibleLines.h"

namespace {
using State = AccessibleObject::State;

QString lineOf(const AccessibleObject &object, const QString &name)
{
    // The versions of GTK write the role differently.
    QString line = object.role().remove(u' ') + u": "_s + name;
    const QVariant value = object.value();
    if (value.isValid()) {
        line += u" "_s + value.toString();
    }
    line += (object.is(State::Checked) ? u", checked"_s : QString()) +
            (object.is(State::Focused) ? u", focused"_s : QString()) +
            (object.is(State::Sensitive) ? QString() : u", grey"_s);
    const QString description = object.description();
    return description.isEmpty() ? line : line + u"; "_s + description;
}

void addLines(const AccessibleObject &object, QStringList *lines)
{
    const QString name = object.name();
    if (!name.isEmpty() && object.is(State::Visible)) {
        lines->append(lineOf(object, name));
    }
    const QList<AccessibleObject> children = object.children();
    for (const AccessibleObject &child : children) {
        addLines(child, lines);
    }
}
} // namespace

QStringList accessibleLines(const QDBusConnection &bus)
{
    QStringList lines;
    addLines(AccessibleObject::desktop(bus), &lines);
    return lines;
}
