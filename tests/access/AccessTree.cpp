// SPDX-License-Identifier: Apache-2.0
#include "AccessTree.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QToolTip>

QAccessibleInterface *accessOf(const QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(const_cast<QWidget *>(widget));
}

QString nameOf(const QWidget *widget)
{
    return accessOf(widget)->text(QAccessible::Name);
}

QString descriptionOf(const QWidget *widget)
{
    QCoreApplication::sendPostedEvents();
    return accessOf(widget)->text(QAccessible::Description);
}

QString valueOf(const QWidget *widget)
{
    return accessOf(widget)->text(QAccessible::Value);
}

QString shownTip(QWidget *widget)
{
    QToolTip::hideText();
    const QPoint at = widget->rect().center();
    QHelpEvent event(QEvent::ToolTip, at, widget->mapToGlobal(at));
    QCoreApplication::sendEvent(widget, &event);
    return QToolTip::text();
}

QList<const QObject *> objectsBelow(QAccessibleInterface *interface)
{
    QList<const QObject *> objects = {interface->object()};
    for (int i = 0; i < interface->childCount(); ++i) {
        if (QAccessibleInterface *child = interface->child(i)) {
            objects.append(objectsBelow(child));
        }
    }
    return objects;
}
