// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

class CheckedFile;

/**
 * A picture whose file is read at once, and decoded when it is first used.
 *
 * Beside the file there may be files of the same picture with a higher resolution, with "@1.5x",
 * "@2x" and "@3x" in their names.
 */
class PictureFile
{
public:
    PictureFile() = default;
    /**
     * Reads the file with the lowest resolution that is sufficient for the screen, else the one
     * with the highest. Only trusted files within the ResourceLimits are used.
     *
     * @param folder opened as a trusted one.
     * @param name of the file with the lowest resolution.
     */
    PictureFile(const CheckedFile &folder, const QString &name);

    /// The picture; a null one when the file could not be read or is no picture.
    const QPixmap &pixmap() const;

private:
    bool read(const CheckedFile &folder, const QString &name, qreal ratio);

    mutable QByteArray mBytes;
    mutable QPixmap mPixmap;
    qreal mRatio = 1.0;
};
