#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>

/// Why the data is no form of Qt Designer's that may be made widgets of, with the line, to be said
/// behind the file's name; null when it is one. A form must keep within the ResourceLimits, and
/// must not have other files read, which nobody would have checked: it has no pictures, style
/// sheets or markup. Nor are there control characters in its names.
KVPRINTCORE_EXPORT QString formFault(const QByteArray &form);
