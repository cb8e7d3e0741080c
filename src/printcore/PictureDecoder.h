// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QImage>

/// Decodes the bytes of a picture file. Null when they are not a picture, or when it has more
/// pixels than the ResourceLimits allow, which is checked before decoding.
///
/// @param fault set when there are too many pixels, to be shown after the file's name; may be null.
KVPRINTCORE_EXPORT QImage decodePicture(const QByteArray &bytes, QString *fault = nullptr);
