// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QString>

/**
 * The integer value of a string, by the toolkit's rule: optional white space and one sign, then
 * the leading ASCII digits.
 *
 * @return 0 when there are no digits; the nearest limit of 32 bits when the number is beyond it.
 */
KVPRINTCORE_EXPORT qint32 integerValue(QStringView text);
