#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QImage>

/// The picture that a file's bytes are. Null when they are none, or when it has more pixels than
/// the ResourceLimits allow, which is found out without decoding it; @p fault is set to that then,
/// to be said behind the file's name, unless it is null.
KVPRINTCORE_EXPORT QImage decodePicture(const QByteArray &bytes, QString *fault = nullptr);
