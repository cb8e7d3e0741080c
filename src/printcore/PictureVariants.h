// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QList>
#include <QString>

/// One of the files of a picture.
struct PictureVariant
{
    QString file;
    /// How many of its pixels make one of the picture's, in each direction.
    qreal ratio;
};

/**
 * The files that a picture may have, in the order in which to try them: the lowest resolution that
 * is sufficient for the screen, those above it, then those below it.
 *
 * @param name of the file with the lowest resolution. The others have "@1.5x", "@2x" or "@3x" in
 *        their names.
 * @param screen the device pixel ratio.
 */
KVPRINTCORE_EXPORT QList<PictureVariant> pictureVariants(const QString &name, qreal screen);

/// Whether a file is one of a higher resolution beside another file.
KVPRINTCORE_EXPORT bool isFinerVariant(const QString &name);
