#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>

/// Why the data is no form of Qt Designer's that may be made widgets of, with the line, to be said
/// behind the file's name; null when it is one. A form must keep within the ResourceLimits, and
/// must not have pictures read from files, which nobody would have checked.
KVPRINTCORE_EXPORT QString formFault(const QByteArray &form);
