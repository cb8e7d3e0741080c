#pragma once

#include <QString>

class JobOptions;
class PPDFile;

/// What is wrong with options that a user has asked for: the first one whose value is no choice of
/// the PPD's; null when nothing is. Options that the PPD lacks are not looked at.
QString faultOfOptions(const PPDFile &ppd, const JobOptions &options);
