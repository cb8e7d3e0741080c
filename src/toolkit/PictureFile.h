// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

class CheckedFile;
struct PictureVariant;

/// A picture whose file is read at once, and decoded when it is first used.
class PictureFile
{
public:
    PictureFile() = default;
    /**
     * Reads the first of the pictureVariants() for the screen that is a trusted file within the
     * ResourceLimits.
     *
     * @param folder opened as a trusted one.
     * @param name of the file with the lowest resolution.
     */
    PictureFile(const CheckedFile &folder, const QString &name);

    /// The picture; a null one when the file could not be read or is no picture.
    const QPixmap &pixmap() const;

private:
    bool read(const CheckedFile &folder, const PictureVariant &variant);

    mutable QByteArray mBytes;
    mutable QPixmap mPixmap;
    qreal mRatio = 1.0;
};
