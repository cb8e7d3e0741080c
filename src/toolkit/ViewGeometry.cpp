#include "toolkit/ViewGeometry.h"

#include <QWidget>

namespace {
int parentHeight(const QWidget *widget)
{
    const QWidget *parent = widget->parentWidget();
    return parent ? parent->height() : 0;
}
} // namespace

QPointF frameOrigin(const QWidget *widget)
{
    if (!widget) {
        return {};
    }
    return {double(widget->x()), double(parentHeight(widget) - widget->y() - widget->height())};
}

void setFrameOrigin(QWidget *widget, double x, double y)
{
    if (widget) {
        widget->move(int(x), parentHeight(widget) - int(y) - widget->height());
    }
}
