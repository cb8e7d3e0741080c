// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QString>

/// The text that the bytes are in UTF-8, without a byte order mark; null when they are none.
KVPRINTCORE_EXPORT QString textOfUTF8(const QByteArray &bytes);

/// As textOfUTF8(), but without a last character that the end of the bytes cuts off.
KVPRINTCORE_EXPORT QString textOfCutUTF8(const QByteArray &bytes);
