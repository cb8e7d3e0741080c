// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointF>
#include <QSizeF>

class QWidget;

/**
 * @file
 * The panel's coordinates: points, with the origin in the lower left corner of the parent and y
 * growing upwards; in a nib that is read from right to left, in the lower right corner with x
 * growing to the left. These functions are the only place that knows Qt's, and how many pixels of
 * Qt's a point is: one, or more where the user's font is larger than the nib was drawn for.
 *
 * Each answers nothing but zeroes, and does nothing, for a null widget.
 */

/// Stretches a nib that has just been loaded to the font, so that no text is clipped, and has it
/// mirrored where texts are read from right to left.
void fitToFont(QWidget *nib);

/// Qt's pixels per point in the nib around the widget; 1 outside of a nib.
double pixelsPerPoint(const QWidget *widget);

/// The widget's corner that is nearest to the origin, in its parent's coordinates.
QPointF frameOrigin(const QWidget *widget);

/// Moves that corner of the widget there, truncated to whole points.
void setFrameOrigin(QWidget *widget, double x, double y);

/// The widget's size, in whole points.
QSizeF frameSize(const QWidget *widget);

/// Resizes the widget and keeps the upper corner above frameOrigin().
void setFrameSize(QWidget *widget, const QSizeF &size);
