// SPDX-License-Identifier: Apache-2.0
#include "toolkit/ControlState.h"

#include <QAbstractButton>

void setControlEnabled(QWidget *control, bool enabled)
{
    if (control && isControlEnabled(control) != enabled) {
        control->setEnabled(enabled);
    }
}

bool isControlEnabled(const QWidget *control)
{
    return control && control->isEnabledTo(control->parentWidget());
}

bool isControlShown(const QWidget *control)
{
    return control && !control->isHidden();
}

bool isOn(const QAbstractButton *box)
{
    return isControlShown(box) && box->isChecked();
}
