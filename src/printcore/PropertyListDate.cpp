#include "printcore/PropertyListDate.h"

#include <QTimeZone>

#include <cmath>

namespace {
constexpr int kFirstYear = 1000;
constexpr int kLastYear = 9999;
constexpr double kMillisecondsPerSecond = 1000;
/// More than there are in the years above.
constexpr double kMostMilliseconds = 1e15;

QDateTime reference()
{
    return QDateTime(QDate(2001, 1, 1), QTime(0, 0), QTimeZone::utc()).toUTC();
}
} // namespace

bool PropertyListDate::isHeld(const QDateTime &date)
{
    if (!date.isValid()) {
        return false;
    }
    const int year = date.toUTC().date().year();
    return year >= kFirstYear && year <= kLastYear;
}

QDateTime PropertyListDate::fromSeconds(double seconds)
{
    const double milliseconds = seconds * kMillisecondsPerSecond;
    if (!(std::abs(milliseconds) < kMostMilliseconds)) {
        return {};
    }
    const QDateTime date = reference().addMSecs(std::llround(milliseconds));
    return isHeld(date) ? date : QDateTime();
}

double PropertyListDate::toSeconds(const QDateTime &date)
{
    return static_cast<double>(reference().msecsTo(date)) / kMillisecondsPerSecond;
}
