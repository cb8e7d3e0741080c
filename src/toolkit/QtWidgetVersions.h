// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDropEvent>

/**
 * @file
 * As printcore/QtVersions.h, for what has to do with widgets.
 */

/// Where in the widget something is dropped.
inline QPointF positionOf(const QDropEvent &event)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return event.position();
#else
    return event.posF();
#endif
}
