#pragma once

#include <QPointF>

class QWidget;

/**
 * @file
 * The panel's coordinates: points, with the origin in the lower left corner of the parent and y
 * growing upwards. These two functions are the only place that knows Qt's.
 */

/// The lower left corner of the widget in its parent's coordinates; (0, 0) for a null widget.
QPointF frameOrigin(const QWidget *widget);

/// Moves the widget's lower left corner there, truncated to whole points; does nothing for null.
void setFrameOrigin(QWidget *widget, double x, double y);
