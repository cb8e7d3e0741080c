// SPDX-License-Identifier: Apache-2.0
#include "textinput/CalendarFormat.h"

#include "printcore/QtVersions.h"

#include <QLocale>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>
#include <iterator>
#include <optional>

namespace {
/// How deep formats of the locale may stand in each other: "%c" holds "%x" and "%X".
constexpr int deepestFormat = 2;

struct NumberConversion
{
    char16_t letter;
    int digits;
    int (*value)(const QDateTime &date);
};

constexpr NumberConversion numberConversions[] = {
    {u'd', 2,
     [](const QDateTime &date) {
         return date.date().day();
     }},
    {u'e', 1,
     [](const QDateTime &date) {
         return date.date().day();
     }},
    {u'F', 3,
     [](const QDateTime &date) {
         return date.time().msec();
     }},
    {u'H', 2,
     [](const QDateTime &date) {
         return date.time().hour();
     }},
    {u'I', 2,
     [](const QDateTime &date) {
         return (date.time().hour() + 11) % 12 + 1;
     }},
    {u'j', 3,
     [](const QDateTime &date) {
         return date.date().dayOfYear();
     }},
    {u'm', 2,
     [](const QDateTime &date) {
         return date.date().month();
     }},
    {u'M', 2,
     [](const QDateTime &date) {
         return date.time().minute();
     }},
    {u'S', 2,
     [](const QDateTime &date) {
         return date.time().second();
     }},
    {u'w', 1,
     [](const QDateTime &date) {
         return date.date().dayOfWeek() % 7;
     }},
    {u'y', 2,
     [](const QDateTime &date) {
         return qAbs(date.date().year() % 100);
     }},
    {u'Y', 1,
     [](const QDateTime &date) {
         return date.date().year();
     }},
};

struct NameConversion
{
    char16_t letter;
    const char *key;
    /// The English names, separated by spaces.
    const char *names;
    int (*index)(const QDateTime &date);
};

constexpr NameConversion nameConversions[] = {
    {u'a', "NSShortWeekDayNameArray", "Sun Mon Tue Wed Thu Fri Sat",
     [](const QDateTime &date) {
         return date.date().dayOfWeek() % 7;
     }},
    {u'A', "NSWeekDayNameArray", "Sunday Monday Tuesday Wednesday Thursday Friday Saturday",
     [](const QDateTime &date) {
         return date.date().dayOfWeek() % 7;
     }},
    {u'b', "NSShortMonthNameArray", "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec",
     [](const QDateTime &date) {
         return date.date().month() - 1;
     }},
    {u'B', "NSMonthNameArray",
     "January February March April May June July August September October November December",
     [](const QDateTime &date) {
         return date.date().month() - 1;
     }},
    {u'p', "NSAMPMDesignation", "AM PM",
     [](const QDateTime &date) {
         return date.time().hour() / 12;
     }},
};

struct FormatConversion
{
    char16_t letter;
    const char *key;
    const char *format;
};

constexpr FormatConversion formatConversions[] = {
    {u'c', "NSTimeDateFormatString", "%X %x"},
    {u'x', "NSDateFormatString", "%A, %B %e, %Y"},
    {u'X', "NSTimeFormatString", "%I:%M:%S %p"},
};

template <typename Conversion, std::size_t Count>
const Conversion *conversionOf(const Conversion (&conversions)[Count], QChar letter)
{
    const auto *const found = std::find_if(
        std::begin(conversions), std::end(conversions),
        [letter](const Conversion &conversion) { return letter == conversion.letter; });
    return found == std::end(conversions) ? nullptr : found;
}

QString numberText(int number, int digits)
{
    const QString text = QString::number(qAbs(qint64(number))).rightJustified(digits, u'0');
    return number < 0 ? u'-' + text : text;
}

QString nameText(const NameConversion &conversion, int index, const QVariantMap &locale)
{
    const QStringList names = locale.value(QLatin1String(conversion.key)).toStringList();
    return index < names.size() ? names[index]
                                : QString::fromLatin1(conversion.names).section(u' ', index, index);
}

QString formatText(const FormatConversion &conversion, const QVariantMap &locale)
{
    const QString format = locale.value(QLatin1String(conversion.key)).toString();
    return format.isNull() ? QString::fromLatin1(conversion.format) : format;
}

QString offsetText(const QDateTime &date)
{
    const int minutes = date.offsetFromUtc() / 60;
    return (minutes < 0 ? u'-' : u'+') + numberText(qAbs(minutes) / 60, 2) +
           numberText(qAbs(minutes) % 60, 2);
}

QString zoneName(const QDateTime &date)
{
    const QTimeZone zone = date.timeZone();
    const QString name = zone.displayName(date, QTimeZone::LongName, QLocale::c());
    return name.isEmpty() ? date.timeZoneAbbreviation() : name;
}

/// Fills the conversions of a format with one date.
class DateDescriber
{
public:
    DateDescriber(const QDateTime &date, const QVariantMap &locale)
        : mDate(date)
        , mLocale(locale)
    {
    }

    QString described(const QString &format, int depth = 0) const
    {
        static const QRegularExpression conversion(QStringLiteral("%(\\d?)([a-zA-Z%])"));
        QString text;
        QtSize end = 0;
        for (auto matches = conversion.globalMatch(format); matches.hasNext();) {
            const QRegularExpressionMatch match = matches.next();
            text += QStringView(format).mid(end, match.capturedStart() - end);
            text += converted(match, depth);
            end = match.capturedEnd();
        }
        text += QStringView(format).mid(end);
        return text;
    }

private:
    QString converted(const QRegularExpressionMatch &match, int depth) const
    {
        const QStringView digits = match.capturedView(1);
        const QChar letter = match.capturedView(2).front();
        if (const auto *const number = conversionOf(numberConversions, letter)) {
            return numberText(number->value(mDate),
                              digits.isEmpty() ? number->digits : digits.toInt());
        }
        const auto text = digits.isEmpty() ? otherText(letter, depth) : std::nullopt;
        return text.value_or(match.captured());
    }

    /// What a letter that is no number's stands for; nothing when it is no conversion.
    std::optional<QString> otherText(QChar letter, int depth) const
    {
        if (const auto *const name = conversionOf(nameConversions, letter)) {
            return nameText(*name, name->index(mDate), mLocale);
        }
        const auto *const format = conversionOf(formatConversions, letter);
        if (format && depth < deepestFormat) {
            return described(formatText(*format, mLocale), depth + 1);
        }
        switch (letter.unicode()) {
        case u'z':
            return offsetText(mDate);
        case u'Z':
            return zoneName(mDate);
        case u'%':
            return QStringLiteral("%");
        default:
            return std::nullopt;
        }
    }

    const QDateTime &mDate;
    const QVariantMap &mLocale;
};
} // namespace

QString descriptionWithCalendarFormat(const QDateTime &date, const QString &format,
                                      const QVariantMap &locale)
{
    return date.isValid() ? DateDescriber(date, locale).described(format) : QString();
}
