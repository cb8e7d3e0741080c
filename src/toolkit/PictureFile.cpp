// SPDX-License-Identifier: Apache-2.0
#include "toolkit/PictureFile.h"

#include "printcore/CheckedFile.h"
#include "printcore/PictureDecoder.h"
#include "printcore/ResourceLimits.h"

#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {
struct Variant
{
    qreal ratio;
    const char *mark;
};

/// The finer files, from the coarsest to the finest.
constexpr Variant variants[] = {{1.5, "@1.5x"}, {2.0, "@2x"}, {3.0, "@3x"}};

QString variantOf(const QString &name, const char *mark)
{
    const QFileInfo file(name);
    return file.completeBaseName() + QLatin1String(mark) + u'.' + file.suffix();
}
} // namespace

PictureFile::PictureFile(const CheckedFile &folder, const QString &name)
{
    const qreal screen = qGuiApp->devicePixelRatio();
    const auto readVariant = [&](const Variant &variant) {
        return read(folder, variantOf(name, variant.mark), variant.ratio);
    };
    if (screen > 1.0) {
        const Variant *fine =
            std::find_if(std::begin(variants), std::end(variants),
                         [screen](const Variant &variant) { return variant.ratio >= screen; });
        if (std::any_of(fine, std::end(variants), readVariant) ||
            std::any_of(std::make_reverse_iterator(fine), std::rend(variants), readVariant)) {
            return;
        }
    }
    read(folder, name, 1.0);
}

bool PictureFile::read(const CheckedFile &folder, const QString &name, qreal ratio)
{
    CheckedFile file = folder.file(name);
    mBytes = file.read(ResourceLimits::kPictureSize);
    mRatio = ratio;
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
