#pragma once

#include <QByteArray>
#include <QPixmap>
#include <QString>

/// A picture whose file is read at once, and decoded when it is first asked for.
class PictureFile
{
public:
    PictureFile() = default;
    /// Reads the file, or on a finer screen the one beside it with "@2x" in its name.
    explicit PictureFile(const QString &path);

    /// The picture; a null one when the file could not be read or is no picture.
    const QPixmap &pixmap() const;

private:
    mutable QByteArray mBytes;
    mutable QPixmap mPixmap;
    qreal mRatio = 1.0;
};
