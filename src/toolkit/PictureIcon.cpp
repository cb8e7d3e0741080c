#include "toolkit/PictureIcon.h"

void PictureIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QPixmap PictureIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().pixmap(size, mode, state);
}

QPixmap PictureIcon::scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state,
                                  qreal scale)
{
    return icon().pixmap(size / scale, scale, mode, state);
}

QSize PictureIcon::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().actualSize(size, mode, state);
}

const QIcon &PictureIcon::icon()
{
    if (mIcon.isNull()) {
        mIcon = QIcon(mPath);
    }
    return mIcon;
}
