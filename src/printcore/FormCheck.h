// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>

/// Checks that the data is a form of Qt Designer's within the ResourceLimits. It must not contain
/// pictures, style sheets or markup, which could read other files without a check, nor names with
/// control characters.
///
/// @return null, or the error with its line, to be shown after the file's name.
KVPRINTCORE_EXPORT QString formFault(const QByteArray &form);
