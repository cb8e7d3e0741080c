// SPDX-License-Identifier: Apache-2.0
#include "preview/OptionViewAccessible.h"

#include "preview/OptionView.h"

#include <QAbstractButton>

OptionViewAccessible::OptionViewAccessible(OptionView13_v400_ *view)
    : QAccessibleWidget(view, QAccessible::Graphic)
{
}

void *OptionViewAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ImageInterface) {
        return static_cast<QAccessibleImageInterface *>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QString OptionViewAccessible::imageDescription() const
{
    return text(QAccessible::Description);
}

QSize OptionViewAccessible::imageSize() const
{
    return rect().size();
}

QPoint OptionViewAccessible::imagePosition() const
{
    return rect().topLeft();
}
