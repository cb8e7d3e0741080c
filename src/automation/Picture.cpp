// SPDX-License-Identifier: Apache-2.0
#include "automation/Picture.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPixmap>
#include <QSaveFile>
#include <QWidget>

namespace {
QByteArray pictureOf(QWidget &widget)
{
    QBuffer picture;
    picture.open(QIODevice::WriteOnly);
    widget.grab().save(&picture, "PNG");
    return picture.data();
}

/// What went wrong, null when nothing did.
QString writeInPlace(QFile &file, const QByteArray &bytes)
{
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush();
    return isWritten ? QString() : file.errorString();
}

/// Writes the whole file or leaves what is there as it is.
QString replaceFile(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() &&
                           file.flush() && file.commit();
    return isWritten ? QString() : file.errorString();
}
} // namespace

QString writePictureOf(QWidget &widget, const QString &path)
{
    const QFileInfo info(path);
    QFile device(path);
    const bool isDevice = info.exists() && !info.isFile() && !info.isDir();
    const QString fault =
        isDevice ? writeInPlace(device, pictureOf(widget)) : replaceFile(path, pictureOf(widget));
    return fault.isNull()
               ? QString()
               : QStringLiteral("%1: the picture could not be written: %2").arg(path, fault);
}
