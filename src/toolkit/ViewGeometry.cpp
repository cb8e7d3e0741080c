// SPDX-License-Identifier: Apache-2.0
#include "toolkit/ViewGeometry.h"

#include "toolkit/LayoutMirror.h"

#include <QVariant>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {
constexpr char pixelsPerPointProperty[] = "pixelsPerPoint";

/// The tallest line of text, in points, that the nib's rows hold.
constexpr double tallestLine = 20.0;

int toPixels(double points, double scale)
{
    return int(std::lround(points * scale));
}

double toPoints(int pixels, double scale)
{
    return std::round(pixels / scale);
}

int parentHeight(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return parent ? parent->height() : 0;
}

/// Qt's x of a widget that is so many pixels away from the edge where lines begin, and vice versa.
int fromStart(const QWidget *widget, int x)
{
    return LayoutMirror::isMirrored(widget) ? LayoutMirror::mirrored(widget, x) : x;
}

void stretch(QWidget *widget, double scale)
{
    const QRect frame = widget->geometry();
    widget->setGeometry(toPixels(frame.x(), scale), toPixels(frame.y(), scale),
                        toPixels(frame.width(), scale), toPixels(frame.height(), scale));
}
} // namespace

void fitToFont(QWidget *nib)
{
    const double scale = std::max(1.0, nib->fontMetrics().height() / tallestLine);
    nib->setProperty(pixelsPerPointProperty, scale);
    nib->resize(toPixels(nib->width(), scale), toPixels(nib->height(), scale));
    const auto controls = nib->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *control : controls) {
        stretch(control, scale);
    }
    new LayoutMirror(nib);
}

double pixelsPerPoint(const QWidget *widget)
{
    for (; widget; widget = widget->parentWidget()) {
        const QVariant scale = widget->property(pixelsPerPointProperty);
        if (scale.isValid()) {
            return scale.toDouble();
        }
    }
    return 1.0;
}

QPointF frameOrigin(const QWidget *widget)
{
    if (!widget) {
        return {};
    }
    const double scale = pixelsPerPoint(widget);
    return {toPoints(fromStart(widget, widget->x()), scale),
            toPoints(parentHeight(widget) - widget->y() - widget->height(), scale)};
}

void setFrameOrigin(QWidget *widget, double x, double y)
{
    if (!widget) {
        return;
    }
    const double scale = pixelsPerPoint(widget);
    widget->move(fromStart(widget, toPixels(std::trunc(x), scale)),
                 parentHeight(widget) - toPixels(std::trunc(y), scale) - widget->height());
}

QSizeF frameSize(const QWidget *widget)
{
    if (!widget) {
        return {0.0, 0.0};
    }
    const double scale = pixelsPerPoint(widget);
    return {toPoints(widget->width(), scale), toPoints(widget->height(), scale)};
}

void setFrameSize(QWidget *widget, const QSizeF &size)
{
    if (!widget) {
        return;
    }
    const double scale = pixelsPerPoint(widget);
    const int start = fromStart(widget, widget->x());
    widget->resize(toPixels(size.width(), scale), toPixels(size.height(), scale));
    widget->move(fromStart(widget, start), widget->y());
    if (auto *mirror = widget->findChild<LayoutMirror *>(QString(), Qt::FindDirectChildrenOnly)) {
        mirror->followWidth();
    }
}
