// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessible>
#include <QWidget>

/// What assistive technology is answered about a widget.
QAccessibleInterface *accessOf(const QWidget *widget);
QString nameOf(const QWidget *widget);
QString descriptionOf(const QWidget *widget);
QString valueOf(const QWidget *widget);

/// The tip that appears when the mouse rests on a widget; empty for none.
QString shownTip(QWidget *widget);

/// The objects of an interface and of everything below it.
QList<const QObject *> objectsBelow(QAccessibleInterface *interface);
