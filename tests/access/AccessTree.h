// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QWidget>

/// What assistive technology is answered about a widget.
QAccessibleInterface *accessOf(const QWidget *widget);
QString nameOf(const QWidget *widget);
QString descriptionOf(const QWidget *widget);
QString valueOf(const QWidget *widget);

/// The objects of an interface and of everything below it.
QList<const QObject *> objectsBelow(QAccessibleInterface *interface);
