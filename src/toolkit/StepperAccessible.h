// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

class Stepper;

/// A stepper as assistive technology sees it: a number that can be read, set and moved by one.
class StepperAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit StepperAccessible(Stepper *stepper);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QString text(QAccessible::Text kind) const override;
    QStringList actionNames() const override;
    void doAction(const QString &name) override;

    QVariant currentValue() const override;
    /// Chooses a number as the user would; does nothing while the stepper is disabled.
    void setCurrentValue(const QVariant &value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override { return 1; }

private:
    Stepper *stepper() const;
};
