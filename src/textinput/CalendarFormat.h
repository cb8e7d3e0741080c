// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDateTime>
#include <QVariantMap>

/**
 * The date as the format says, in the date's own time zone.
 *
 * | conversion | stands for |
 * |---|---|
 * | %a %A | the weekday's short or full name |
 * | %b %B | the month's short or full name |
 * | %c | time and date, as the locale has them |
 * | %d %e | the day of the month, two digits or as many as it has |
 * | %F | the millisecond, three digits |
 * | %H %I | the hour of the day or of the half day, two digits |
 * | %j | the day of the year, three digits |
 * | %m | the month, two digits |
 * | %M | the minute, two digits |
 * | %p | the half day's name |
 * | %S | the second, two digits |
 * | %w | the weekday's number, 0 for Sunday |
 * | %x %X | the date or the time, as the locale has it |
 * | %y %Y | the year without and with its century |
 * | %z %Z | the time zone: its hours and minutes from UTC, as in "+0900", or its name |
 * | %% | a percent sign |
 *
 * A digit before a number's letter is how many digits it has at least: "%1d" is the day without a
 * leading zero. Whatever else follows a percent sign stays as it stands.
 *
 * @param locale the names and formats under the keys "NSWeekDayNameArray",
 *        "NSShortWeekDayNameArray" (from Sunday on), "NSMonthNameArray", "NSShortMonthNameArray",
 *        "NSAMPMDesignation", "NSDateFormatString", "NSTimeFormatString" and
 *        "NSTimeDateFormatString"; English for those that are missing.
 * @return null for a date that is not valid.
 */
QString descriptionWithCalendarFormat(const QDateTime &date, const QString &format,
                                      const QVariantMap &locale);
