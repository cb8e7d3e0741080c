#pragma once

#include <QDateTime>

/// The dates of property lists: those with four digits for the year, as XML has them.
namespace PropertyListDate {
/// Whether a property list can hold the date.
bool isHeld(const QDateTime &date);

/// The date at so many seconds from the start of 2001 (UTC); invalid when none can be held there.
QDateTime fromSeconds(double seconds);

/// The seconds from the start of 2001 (UTC) to the date.
double toSeconds(const QDateTime &date);
} // namespace PropertyListDate
