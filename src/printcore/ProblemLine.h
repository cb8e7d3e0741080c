// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QString>

/// The text as one line that looks the same on every terminal: characters that would end it, or
/// would do something instead of being seen, are written as their codes ("\\n", "\\x1b").
KVPRINTCORE_EXPORT QString asOneLine(const QString &text);

/// Tells the user of a problem: "kvprint: " and the problem, as one line on standard error.
KVPRINTCORE_EXPORT void tellProblem(const QString &problem);
