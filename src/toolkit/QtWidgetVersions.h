#pragma once

#include <QDropEvent>
#include <QIcon>
#include <QPixmap>

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

/// An icon's picture for a display of that scale; in Qt 5 it is for that of the application.
inline QPixmap scaledPixmapOf(const QIcon &icon, const QSize &size, [[maybe_unused]] qreal scale,
                              QIcon::Mode mode, QIcon::State state)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return icon.pixmap(size, scale, mode, state);
#else
    return icon.pixmap(size, mode, state);
#endif
}

/// The size that a picture is drawn in, without the display's scale.
inline QSizeF drawnSizeOf(const QPixmap &picture)
{
    return QSizeF(picture.size()) / picture.devicePixelRatio();
}
