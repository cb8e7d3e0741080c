// SPDX-License-Identifier: Apache-2.0
#include "toolkit/PictureFile.h"

#include "printcore/CheckedFile.h"
#include "printcore/PictureDecoder.h"
#include "printcore/PictureVariants.h"
#include "printcore/ResourceLimits.h"

#include <QCryptographicHash>
#include <QGuiApplication>
#include <QPixmapCache>

#include <utility>

namespace {
/// The picture in a file's bytes, which another panel may have decoded before.
QPixmap pictureIn(const QByteArray &bytes, qreal ratio)
{
    const QByteArray sum = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
    const QString key = QStringLiteral("kvprint %1 %2").arg(QLatin1String(sum)).arg(ratio);
    QPixmap picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = QPixmap::fromImage(decodePicture(bytes));
        picture.setDevicePixelRatio(ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}
} // namespace

PictureFile::PictureFile(const CheckedFile &folder, const QString &name)
{
    for (const PictureVariant &variant : pictureVariants(name, qGuiApp->devicePixelRatio())) {
        if (read(folder, variant)) {
            return;
        }
    }
}

bool PictureFile::read(const CheckedFile &folder, const PictureVariant &variant)
{
    CheckedFile file = folder.file(variant.file);
    mBytes = file.read(ResourceLimits::kPictureSize);
    mRatio = variant.ratio;
    return file.fault().isNull();
}

const QPixmap &PictureFile::pixmap() const
{
    if (!mBytes.isEmpty()) {
        mPixmap = pictureIn(std::exchange(mBytes, {}), mRatio);
    }
    return mPixmap;
}
