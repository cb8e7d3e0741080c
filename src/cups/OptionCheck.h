// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QString>

class PPDFile;

/// The error about the first option whose value is not one of the PPD's choices; null when there is
/// none. Options that the PPD lacks are not checked.
QString faultOfOptions(const PPDFile &ppd, const JobOptions &options);

/// The options with keywords and choices as the PPD writes them, where only the case of letters
/// differs. Options and choices that the PPD lacks stay as they are.
JobOptions spelledAsIn(const PPDFile &ppd, const JobOptions &options);
