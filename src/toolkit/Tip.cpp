// SPDX-License-Identifier: Apache-2.0
#include "toolkit/Tip.h"

#include <QTextDocument>
#include <QWidget>

void setTip(QWidget *control, const QString &text)
{
    if (!control || control->accessibleDescription() == text) {
        return;
    }
    control->setAccessibleDescription(text);
    // A tip that looks like markup would be read as such.
    control->setToolTip(
        Qt::mightBeRichText(text) ? QStringLiteral("<qt>%1</qt>").arg(text.toHtmlEscaped()) : text);
}
