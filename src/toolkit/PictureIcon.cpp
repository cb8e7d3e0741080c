#include "toolkit/PictureIcon.h"

#include "toolkit/QtWidgetVersions.h"

void PictureIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QPixmap PictureIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().pixmap(size, mode, state);
}

void PictureIcon::virtual_hook(int id, void *data)
{
    if (id != ScaledPixmapHook) {
        return QIconEngine::virtual_hook(id, data);
    }
    auto *wanted = static_cast<ScaledPixmapArgument *>(data);
    wanted->pixmap = scaledPixmapOf(icon(), wanted->size / wanted->scale, wanted->scale,
                                    wanted->mode, wanted->state);
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
