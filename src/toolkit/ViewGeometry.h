#pragma once

#include <QPointF>
#include <QSizeF>

class QWidget;

/**
 * @file
 * The panel's coordinates: points, with the origin in the lower left corner of the parent and y
 * growing upwards. These functions are the only place that knows Qt's, and how many pixels of
 * Qt's a point is: one, or more where the user's font is larger than the nib was drawn for.
 *
 * Each answers nothing but zeroes, and does nothing, for a null widget.
 */

/// Stretches a nib that has just been loaded to the font, so that no text is clipped.
void fitToFont(QWidget *nib);

/// Qt's pixels per point in the nib around the widget; 1 outside of a nib.
double pixelsPerPoint(const QWidget *widget);

/// The lower left corner of the widget in its parent's coordinates.
QPointF frameOrigin(const QWidget *widget);

/// Moves the widget's lower left corner there, truncated to whole points.
void setFrameOrigin(QWidget *widget, double x, double y);

/// The widget's size, in whole points.
QSizeF frameSize(const QWidget *widget);

/// Resizes the widget and keeps its upper left corner.
void setFrameSize(QWidget *widget, const QSizeF &size);
