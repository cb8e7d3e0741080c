// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/Limits.h"

/// Levels of messages, and whether a message of the level is printed.
inline void addLevels()
{
    const TestTable<qint32, bool> table("level", "prints");
    table.add("0", 0, true);
    table.add("-1", -1, true);
    table.add("-5", -5, true);
    table.add("smallest", smallest, true);
    table.add("1", 1, false);
    table.add("largest", largest, false);
}
