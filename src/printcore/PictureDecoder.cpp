// SPDX-License-Identifier: Apache-2.0
#include "printcore/PictureDecoder.h"

#include "printcore/ResourceLimits.h"

#include <QBuffer>
#include <QImageReader>

QImage decodePicture(const QByteArray &bytes, QString *fault)
{
    QBuffer buffer;
    buffer.setData(bytes);
    QImageReader reader(&buffer);
    const QSize size = reader.size();
    const bool isTooLarge =
        qint64(size.width()) * qint64(size.height()) > ResourceLimits::kPicturePixels;
    QImage picture = size.isEmpty() || isTooLarge ? QImage() : reader.read();
    if (picture.isNull() && fault) {
        *fault = isTooLarge
                     ? QStringLiteral("has more than %1 pixels").arg(ResourceLimits::kPicturePixels)
                     : QStringLiteral("is no picture");
    }
    return picture;
}
