#include "toolkit/PictureFile.h"

#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>

#include <utility>

namespace {
constexpr qreal fineRatio = 2.0;

QString fineVariant(const QString &path)
{
    const QFileInfo file(path);
    return QStringLiteral("%1/%2@2x.%3").arg(file.path(), file.completeBaseName(), file.suffix());
}
} // namespace

PictureFile::PictureFile(const QString &path)
{
    QFile file(path);
    if (qGuiApp->devicePixelRatio() > 1.0 && QFile::exists(fineVariant(path))) {
        file.setFileName(fineVariant(path));
        mRatio = fineRatio;
    }
    if (file.open(QIODevice::ReadOnly)) {
        mBytes = file.readAll();
    }
}

const QPixmap &PictureFile::pixmap() const
{
    if (!mBytes.isEmpty() && mPixmap.loadFromData(std::exchange(mBytes, {}))) {
        mPixmap.setDevicePixelRatio(mRatio);
    }
    return mPixmap;
}
