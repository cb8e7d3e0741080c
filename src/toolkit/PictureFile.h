#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

class CheckedFile;

/**
 * A picture whose file is read at once, and decoded when it is first asked for.
 *
 * Beside the file there may be finer ones of the same picture, with "@1.5x", "@2x" and "@3x" in
 * their names.
 */
class PictureFile
{
public:
    PictureFile() = default;
    /// Reads the coarsest of the files that is as fine as the screen, or the finest there is, of
    /// those that are trusted and within the ResourceLimits.
    explicit PictureFile(const QString &path);

    /// The picture; a null one when the file could not be read or is no picture.
    const QPixmap &pixmap() const;

private:
    bool read(const CheckedFile &folder, const QString &name, qreal ratio);

    mutable QByteArray mBytes;
    mutable QPixmap mPixmap;
    qreal mRatio = 1.0;
};
