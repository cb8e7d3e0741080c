// SPDX-License-Identifier: Apache-2.0
#include "textinput/CalendarFormat.h"

#include <QTest>
#include <QTimeZone>

/// How dates are written.
class CalendarFormatTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fillsEachConversion_data();
    void fillsEachConversion();
    void writesNumbersOfEveryTime_data();
    void writesNumbersOfEveryTime();
    void namesWeekdaysAndMonths();
    void takesNamesFromTheLocale();
    void takesFormatsFromTheLocale();
    void fallsBackToEnglish();
    void leavesOtherTextAlone_data();
    void leavesOtherTextAlone();
    void writesTimeZones_data();
    void writesTimeZones();
    void endsFormatsThatHoldThemselves();
    void saysNothingOfDatesThatAreNotValid_data();
    void saysNothingOfDatesThatAreNotValid();
};

namespace {
/// A Thursday.
const QDateTime date(QDate(2024, 7, 4), QTime(16, 5, 9, 7), QTimeZone(9 * 3600));

QString described(const QString &format, const QVariantMap &locale = {})
{
    return descriptionWithCalendarFormat(date, format, locale);
}
} // namespace

void CalendarFormatTest::fillsEachConversion_data()
{
    const TestTable<QString> table("text");
    const std::pair<const char *, const char16_t *> rows[] = {
        {"%a", u"Thu"},
        {"%A", u"Thursday"},
        {"%b", u"Jul"},
        {"%B", u"July"},
        {"%d", u"04"},
        {"%1d", u"4"},
        {"%e", u"4"},
        {"%2e", u"04"},
        {"%F", u"007"},
        {"%1F", u"7"},
        {"%H", u"16"},
        {"%I", u"04"},
        {"%1I", u"4"},
        {"%j", u"186"},
        {"%m", u"07"},
        {"%1m", u"7"},
        {"%M", u"05"},
        {"%1M", u"5"},
        {"%p", u"PM"},
        {"%S", u"09"},
        {"%1S", u"9"},
        {"%w", u"4"},
        {"%y", u"24"},
        {"%Y", u"2024"},
        {"%6Y", u"002024"},
        {"%z", u"+0900"},
        {"%%", u"%"},
        {"%X", u"04:05:09 PM"},
        {"%x", u"Thursday, July 4, 2024"},
        {"%c", u"04:05:09 PM Thursday, July 4, 2024"},
        {"%d.%1m.%Y, %H:%M", u"04.7.2024, 16:05"},
        {"%%d", u"%d"},
        {"%d%%%m", u"04%07"},
        {"", u""},
        {"Grüße", u"Grüße"},
    };
    for (const auto &[format, text] : rows) {
        table.add(format, QString::fromUtf16(text));
    }
}

void CalendarFormatTest::fillsEachConversion()
{
    QTEST(described(QString::fromUtf8(QTest::currentDataTag())), "text");
}

void CalendarFormatTest::writesNumbersOfEveryTime_data()
{
    const TestTable<QDateTime, QString> table("when", "text");
    const auto row = [&table](const char *name, QDate day, QTime time, const char16_t *text) {
        table.add(name, QDateTime(day, time, QTimeZone::utc()), QString::fromUtf16(text));
    };
    row("midnight", {2024, 1, 1}, {0, 0, 0, 0}, u"00 12 AM 00 00 000 001 1 Mon 24 2024");
    row("one", {2023, 12, 31}, {1, 2, 3, 45}, u"01 01 AM 02 03 045 365 0 Sun 23 2023");
    row("before noon", {2024, 12, 31}, {11, 59, 59, 999}, u"11 11 AM 59 59 999 366 2 Tue 24 2024");
    row("noon", {2000, 2, 29}, {12, 0, 0, 0}, u"12 12 PM 00 00 000 060 2 Tue 00 2000");
    row("last hour", {1905, 11, 25}, {23, 0, 0, 0}, u"23 11 PM 00 00 000 329 6 Sat 05 1905");
    row("early year", {7, 3, 1}, {13, 0, 0, 0}, u"13 01 PM 00 00 000 060 4 Thu 07 7");
    row("before the era", {-44, 3, 15}, {9, 0, 0, 0}, u"09 09 AM 00 00 000 074 5 Fri 44 -44");
}

void CalendarFormatTest::writesNumbersOfEveryTime()
{
    QFETCH(QDateTime, when);
    QTEST(descriptionWithCalendarFormat(when, u"%H %I %p %M %S %F %j %w %a %y %Y"_s, {}), "text");
}

void CalendarFormatTest::namesWeekdaysAndMonths()
{
    QStringList days;
    for (int day = 1; day <= 7; ++day) {
        // From a Sunday on.
        const QDateTime when(QDate(2024, 9, day), QTime(0, 0), QTimeZone::utc());
        days += descriptionWithCalendarFormat(when, u"%w %a %A"_s, {});
    }
    QCOMPARE(days.join(u'|'), u"0 Sun Sunday|1 Mon Monday|2 Tue Tuesday|3 Wed Wednesday|"
                              u"4 Thu Thursday|5 Fri Friday|6 Sat Saturday"_s);
    QStringList months;
    for (int month = 1; month <= 12; ++month) {
        const QDateTime when(QDate(2024, month, 1), QTime(0, 0), QTimeZone::utc());
        months += descriptionWithCalendarFormat(when, u"%b %B"_s, {});
    }
    QCOMPARE(months.join(u'|'),
             u"Jan January|Feb February|Mar March|Apr April|May May|Jun June|Jul July|"
             u"Aug August|Sep September|Oct October|Nov November|Dec December"_s);
}

void CalendarFormatTest::takesNamesFromTheLocale()
{
    const QStringList fullDays{u"Sonntag"_s,    u"Montag"_s,  u"Dienstag"_s, u"Mittwoch"_s,
                               u"Donnerstag"_s, u"Freitag"_s, u"Samstag"_s};
    const QVariantList shortDays{u"So"_s, u"Mo"_s, u"Di"_s, u"Mi"_s, u"Do"_s, u"Fr"_s, u"Sa"_s};
    QStringList months;
    QStringList shortMonths;
    for (int i = 1; i <= 12; ++i) {
        months += u"Monat %1"_s.arg(i);
        shortMonths += u"M%1"_s.arg(i);
    }
    const QVariantMap locale{
        {u"NSWeekDayNameArray"_s, fullDays},
        {u"NSShortWeekDayNameArray"_s, shortDays},
        {u"NSMonthNameArray"_s, months},
        {u"NSShortMonthNameArray"_s, shortMonths},
        {u"NSAMPMDesignation"_s, QStringList{u"vorm."_s, u"nachm."_s}},
    };
    QCOMPARE(described(u"%a %A %b %B %p"_s, locale), u"Do Donnerstag M7 Monat 7 nachm."_s);
}

void CalendarFormatTest::takesFormatsFromTheLocale()
{
    const QVariantMap locale{
        {u"NSDateFormatString"_s, u"%d.%m.%Y"_s},
        {u"NSTimeFormatString"_s, u"%H:%M"_s},
        {u"NSTimeDateFormatString"_s, u"%x um %X"_s},
    };
    QCOMPARE(described(u"%x"_s, locale), u"04.07.2024"_s);
    QCOMPARE(described(u"%X"_s, locale), u"16:05"_s);
    QCOMPARE(described(u"%c"_s, locale), u"04.07.2024 um 16:05"_s);
    const QVariantMap empty{{u"NSAMPMDesignation"_s, QVariantList{u""_s, u""_s}},
                            {u"NSDateFormatString"_s, u""_s}};
    QCOMPARE(described(u"[%p%x]"_s, empty), u"[]"_s);
}

void CalendarFormatTest::fallsBackToEnglish()
{
    const QVariantMap locale{
        {u"NSWeekDayNameArray"_s, QStringList{u"Sonntag"_s, u"Montag"_s}},
        {u"NSMonthNameArray"_s, 12},
        {u"NSAMPMDesignation"_s, QStringList()},
        {u"NSTimeFormatString"_s, QVariant()},
    };
    QCOMPARE(described(u"%A %B %p %X"_s, locale), u"Thursday July PM 04:05:09 PM"_s);
}

void CalendarFormatTest::leavesOtherTextAlone_data()
{
    const TestTable<QString> table("text");
    for (const char *text : {"%", "%1", "100%", "%q", "%@", "%E%k%l", "%-d", "%1p", "%1A", "%12d",
                             "% d", "%é", "%s%n"}) {
        table.add(text, QString::fromUtf8(text));
    }
}

void CalendarFormatTest::leavesOtherTextAlone()
{
    QFETCH(QString, text);
    QCOMPARE(described(text), text);
}

void CalendarFormatTest::writesTimeZones_data()
{
    const TestTable<QDateTime, QString> table("when", "text");
    const QDate day(2024, 7, 4);
    const QTime time(12, 0);
    table.add("universal", QDateTime(day, time, QTimeZone::utc()), u"+0000 UTC"_s);
    table.add("half an hour west", QDateTime(day, time, QTimeZone(-1800)), u"-0030 UTC-00:30"_s);
    table.add("east", QDateTime(day, time, QTimeZone(20700)), u"+0545 UTC+05:45"_s);
    table.add("summer", QDateTime(day, time, QTimeZone("America/Los_Angeles")),
              u"-0700 Pacific Daylight Time"_s);
    table.add("winter", QDateTime(day.addMonths(6), time, QTimeZone("America/Los_Angeles")),
              u"-0800 Pacific Standard Time"_s);
}

void CalendarFormatTest::writesTimeZones()
{
    QFETCH(QDateTime, when);
    QTEST(descriptionWithCalendarFormat(when, u"%z %Z"_s, {}), "text");
}

void CalendarFormatTest::endsFormatsThatHoldThemselves()
{
    const QVariantMap locale{{u"NSTimeDateFormatString"_s, u"<%c>"_s},
                             {u"NSDateFormatString"_s, u"(%x)"_s}};
    QCOMPARE(described(u"%c"_s, locale), u"<<%c>>"_s);
    QCOMPARE(described(u"%x"_s, locale), u"((%x))"_s);
}

void CalendarFormatTest::saysNothingOfDatesThatAreNotValid_data()
{
    const TestTable<QDateTime> table("when");
    table.add("none", QDateTime());
    table.add("no day", QDateTime(QDate(2024, 2, 30), QTime(1, 2), QTimeZone::utc()));
}

void CalendarFormatTest::saysNothingOfDatesThatAreNotValid()
{
    QFETCH(QDateTime, when);
    const QVariantMap locale{{u"NSShortMonthNameArray"_s, QStringList{u"Jan"_s}}};
    for (const char *format : {"%a", "%A", "%b", "%B", "%c", "%x", "%Y-%m-%d", "%Z", "at"}) {
        QVERIFY(descriptionWithCalendarFormat(when, QString::fromLatin1(format), locale).isNull());
    }
}

KV_CORE_TEST(CalendarFormatTest)
#include "tst_calendarformat.moc"
