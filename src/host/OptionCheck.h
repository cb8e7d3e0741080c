#pragma once

#include "host/JobOptions.h"

#include <QString>

class PPDFile;

/// What is wrong with options that a user has asked for: the first one whose value is no choice of
/// the PPD's; null when nothing is. Options that the PPD lacks are not looked at.
QString faultOfOptions(const PPDFile &ppd, const JobOptions &options);

/// The options with keywords and choices as the PPD writes them, where only the case of letters
/// differs. Options and choices that the PPD lacks stay as they are.
JobOptions spelledAsIn(const PPDFile &ppd, const JobOptions &options);
