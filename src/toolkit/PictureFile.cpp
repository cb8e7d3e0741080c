// SPDX-License-Identifier: Apache-2.0
#include "toolkit/PictureFile.h"

#include "printcore/CheckedFile.h"
#include "printcore/PictureDecoder.h"
#include "printcore/PictureVariants.h"
#include "printcore/ResourceLimits.h"

#include <QGuiApplication>

#include <utility>

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
        mPixmap = QPixmap::fromImage(decodePicture(std::exchange(mBytes, {})));
        mPixmap.setDevicePixelRatio(mRatio);
    }
    return mPixmap;
}
