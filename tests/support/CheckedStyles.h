// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStyleFactory>

/// The styles that the panel is checked in: those that every Qt has, and Breeze where it is
/// installed. What else a machine has is none of the tests' business.
inline QStringList checkedStyles()
{
    QStringList styles = {QStringLiteral("Fusion"), QStringLiteral("Windows")};
    const QString breeze = QStringLiteral("Breeze");
    if (QStyleFactory::keys().contains(breeze)) {
        styles.append(breeze);
    }
    return styles;
}
