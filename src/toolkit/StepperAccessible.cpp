// SPDX-License-Identifier: Apache-2.0
#include "toolkit/StepperAccessible.h"

#include "toolkit/Stepper.h"

StepperAccessible::StepperAccessible(Stepper *stepper)
    : QAccessibleWidget(stepper, QAccessible::SpinBox)
{
}

Stepper *StepperAccessible::stepper() const
{
    return static_cast<Stepper *>(widget());
}

void *StepperAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ValueInterface) {
        return static_cast<QAccessibleValueInterface *>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QString StepperAccessible::text(QAccessible::Text kind) const
{
    return kind == QAccessible::Value ? QString::number(stepper()->intValue())
                                      : QAccessibleWidget::text(kind);
}

QStringList StepperAccessible::actionNames() const
{
    QStringList names = QAccessibleWidget::actionNames();
    if (stepper()->isEnabled()) {
        names << increaseAction() << decreaseAction();
    }
    return names;
}

void StepperAccessible::doAction(const QString &name)
{
    const qint64 value = stepper()->intValue();
    if (name == increaseAction()) {
        setCurrentValue(value + 1);
    } else if (name == decreaseAction()) {
        setCurrentValue(value - 1);
    } else {
        QAccessibleWidget::doAction(name);
    }
}

QVariant StepperAccessible::currentValue() const
{
    return stepper()->intValue();
}

void StepperAccessible::setCurrentValue(const QVariant &value)
{
    if (stepper()->isEnabled()) {
        stepper()->chooseValue(value.toLongLong());
    }
}

QVariant StepperAccessible::maximumValue() const
{
    return stepper()->largest();
}

QVariant StepperAccessible::minimumValue() const
{
    return stepper()->smallest();
}
