#include "toolkit/PictureFile.h"

#include <QFile>
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

QString variantOf(const QString &path, const char *mark)
{
    const QFileInfo file(path);
    return QStringLiteral("%1/%2%3.%4")
        .arg(file.path(), file.completeBaseName(), QLatin1String(mark), file.suffix());
}
} // namespace

PictureFile::PictureFile(const QString &path)
{
    const qreal screen = qGuiApp->devicePixelRatio();
    const auto readVariant = [this, &path](const Variant &variant) {
        return read(variantOf(path, variant.mark), variant.ratio);
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
    read(path, 1.0);
}

bool PictureFile::read(const QString &path, qreal ratio)
{
    QFile file(path);
    // Not a pipe, which would block.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    mBytes = file.readAll();
    mRatio = ratio;
    return true;
}

const QPixmap &PictureFile::pixmap() const
{
    if (!mBytes.isEmpty() && mPixmap.loadFromData(std::exchange(mBytes, {}))) {
        mPixmap.setDevicePixelRatio(mRatio);
    }
    return mPixmap;
}
