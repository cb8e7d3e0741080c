// SPDX-License-Identifier: Apache-2.0
#include "toolkit/PictureIcon.h"

#include <QApplication>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {
/// Grey when disabled; else as it is, as a tint for the selected item would hide what it shows.
QPixmap inMode(QIcon::Mode mode, const QPixmap &picture)
{
    if (mode != QIcon::Disabled) {
        return picture;
    }
    QStyleOption option;
    option.palette = QApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, picture, &option);
}
} // namespace

void PictureIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device()->devicePixelRatioF();
    QPixmap picture = pixmap(rect.size() * ratio, mode, state);
    if (picture.isNull()) {
        return;
    }
    picture.setDevicePixelRatio(ratio);
    QRectF place(QPointF(), QSizeF(picture.size()) / ratio);
    place.moveCenter(QRectF(rect).center());
    painter->drawPixmap(place.topLeft(), picture);
}

QPixmap PictureIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap picture = mPicture.pixmap();
    const QSize actual = actualSize(size, mode, state);
    if (actual.isEmpty()) {
        return {};
    }
    picture.setDevicePixelRatio(1.0);
    return inMode(mode, picture.size() == actual ? picture
                                                 : picture.scaled(actual, Qt::IgnoreAspectRatio,
                                                                  Qt::SmoothTransformation));
}

QSize PictureIcon::actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/)
{
    const QSize natural = mPicture.pixmap().size();
    const bool fits = natural.width() <= size.width() && natural.height() <= size.height();
    return fits ? natural : natural.scaled(size, Qt::KeepAspectRatio);
}
