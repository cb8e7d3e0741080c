// SPDX-License-Identifier: Apache-2.0
#include "support/Limits.h"
#include "textinput/PDEFormatter.h"

#include <QTest>

#include <cmath>
#include <limits>

/// How a formatter is made and set, and what it shows.
class FormatterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialisersSetFormatAndStyle();
    void initialiserTakesACalendarDate();
    void startsWithoutLimits();
    void propertiesAreKept();
    void limitsAreCheckedOnceSet();
    void formatIsNeverMissing();
    void notificationObjectIsRetained();

    void refusesStringsOnceAdded();
    void removesEveryEqualString();
    void removesWhatComparesEqual();
    void comparesLongStrings();
    void ignoresMissingStrings();

    void showsValues_data();
    void showsValues();
    void showsTheDateOnlyInItsStyle();
    void readsTextsAsTexts();
    void readsNothingWithoutTextOrResult();
};

namespace {
const QDateTime afternoon(QDate(2024, 7, 4), QTime(16, 5, 9), QTimeZone::utc());
} // namespace

void FormatterTest::initialisersSetFormatAndStyle()
{
    QCOMPARE(PDEFormatter::init()->formatString(), u"%@"_s);
    QCOMPARE(PDEFormatter::init()->textStyle(), 0);
    QCOMPARE(PDEFormatter::initWithStyle(7)->formatString(), u"%@"_s);
    QCOMPARE(PDEFormatter::initWithStyle(7)->textStyle(), 7);
    QCOMPARE(PDEFormatter::initWithStyle(-3)->textStyle(), -3);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_s)->formatString(), u"%d mm"_s);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_s)->textStyle(), 0);
    QCOMPARE(PDEFormatter::initWithFormatString({})->formatString(), u"%@"_s);
    QCOMPARE(PDEFormatter::initWithFormatString(u""_s)->formatString(), u""_s);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_s, 2)->formatString(), u"%d mm"_s);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_s, 2)->textStyle(), 2);
    QCOMPARE(PDEFormatter::initWithFormatString({}, 4)->formatString(), u"%@"_s);
}

void FormatterTest::initialiserTakesACalendarDate()
{
    const QVariantMap locale{{u"NSAMPMDesignation"_s, QStringList{u"vorm."_s, u"nachm."_s}}};
    const auto formatter = PDEFormatter::initWithCalendarDate(afternoon, locale);
    QCOMPARE(formatter->textStyle(), 5);
    QCOMPARE(formatter->calendarDate(), afternoon);
    QCOMPARE(formatter->calendarLocale(), locale);
    QVERIFY(formatter->formatString().isNull());
    QCOMPARE(formatter->stringForObjectValue({}), u"2024-07-04 16:05:09 +0000"_s);
    formatter->setFormatString(u"%I %p"_s);
    QCOMPARE(formatter->stringForObjectValue({}), u"04 nachm."_s);
}

void FormatterTest::startsWithoutLimits()
{
    const auto formatter = PDEFormatter::init();
    QCOMPARE(formatter->maxLength(), 0);
    QCOMPARE(formatter->maxValue(), 0);
    QCOMPARE(formatter->minValue(), 0);
    QVERIFY(!formatter->isValidityMaxValue());
    QVERIFY(!formatter->isValidityMinValue());
    QVERIFY(!formatter->notificationObject());
    QVERIFY(!formatter->calendarDate().isValid());
    QVERIFY(formatter->calendarLocale().isEmpty());
    QVERIFY(!formatter->isInvalidCharacter(u"x"_s));
    QVERIFY(!formatter->isInvalidCharacter(u""_s));
}

void FormatterTest::propertiesAreKept()
{
    const auto formatter = PDEFormatter::init();
    for (const qint32 number : {0, 1, -1, 12, largest, smallest}) {
        formatter->setTextStyle(number);
        formatter->setMaxLength(number);
        formatter->setMaxValue(number);
        formatter->setMinValue(number);
        QCOMPARE(formatter->textStyle(), number);
        QCOMPARE(formatter->maxLength(), number);
        QCOMPARE(formatter->maxValue(), number);
        QCOMPARE(formatter->minValue(), number);
    }
    formatter->setCalendarDate(afternoon);
    QCOMPARE(formatter->calendarDate(), afternoon);
    formatter->setCalendarDate({});
    QVERIFY(!formatter->calendarDate().isValid());
    formatter->setCalendarLocale({{u"NSDateFormatString"_s, u"%d"_s}});
    QCOMPARE(formatter->calendarLocale().size(), 1);
}

void FormatterTest::limitsAreCheckedOnceSet()
{
    const auto formatter = PDEFormatter::init();
    formatter->setMaxValue(9);
    QVERIFY(formatter->isValidityMaxValue());
    QVERIFY(!formatter->isValidityMinValue());
    formatter->setValidityMaxValue(false);
    QVERIFY(!formatter->isValidityMaxValue());
    QCOMPARE(formatter->maxValue(), 9);
    formatter->setMinValue(3);
    QVERIFY(formatter->isValidityMinValue());
    QVERIFY(!formatter->isValidityMaxValue());
    formatter->setValidityMinValue(false);
    QVERIFY(!formatter->isValidityMinValue());
    QCOMPARE(formatter->minValue(), 3);
    formatter->setValidityMinValue(true);
    QVERIFY(formatter->isValidityMinValue());
}

void FormatterTest::formatIsNeverMissing()
{
    const auto formatter = PDEFormatter::initWithFormatString(u"%d"_s);
    formatter->setFormatString({});
    QCOMPARE(formatter->formatString(), u"%@"_s);
    formatter->setFormatString(u"<%@>"_s);
    QCOMPARE(formatter->formatString(), u"<%@>"_s);
}

void FormatterTest::notificationObjectIsRetained()
{
    auto object = std::make_shared<int>(1);
    const std::weak_ptr<int> weak = object;
    auto formatter = PDEFormatter::init();
    formatter->setNotificationObject(object);
    QCOMPARE(formatter->notificationObject().get(), static_cast<const void *>(object.get()));
    object.reset();
    QVERIFY(!weak.expired());
    formatter->setNotificationObject(nullptr);
    QVERIFY(weak.expired());
    QVERIFY(!formatter->notificationObject());
}

void FormatterTest::refusesStringsOnceAdded()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(u"x"_s);
    formatter->addInvalidCharacter(u"abc"_s);
    QVERIFY(formatter->isInvalidCharacter(u"x"_s));
    QVERIFY(formatter->isInvalidCharacter(u"abc"_s));
    QVERIFY(!formatter->isInvalidCharacter(u"xy"_s));
    QVERIFY(!formatter->isInvalidCharacter(u"ab"_s));
    QVERIFY(!formatter->isInvalidCharacter(u"X"_s));
    QVERIFY(!formatter->isInvalidCharacter(u""_s));
}

void FormatterTest::removesEveryEqualString()
{
    const auto formatter = PDEFormatter::init();
    for (const QString &string : {u"x"_s, u"y"_s, u"x"_s, u"x"_s}) {
        formatter->addInvalidCharacter(string);
    }
    formatter->removeInvalidCharacter(u"z"_s);
    QVERIFY(formatter->isInvalidCharacter(u"x"_s));
    formatter->removeInvalidCharacter(u"x"_s);
    QVERIFY(!formatter->isInvalidCharacter(u"x"_s));
    QVERIFY(formatter->isInvalidCharacter(u"y"_s));
}

void FormatterTest::removesWhatComparesEqual()
{
    const QString composed = u"\u00e9"_s;
    const QString decomposed = u"e\u0301"_s;
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(composed);
    QVERIFY(formatter->isInvalidCharacter(decomposed));
    QVERIFY(!formatter->isInvalidCharacter(u"e"_s));

    // The first that compares equal goes, and those that are identical to it.
    formatter->addInvalidCharacter(decomposed);
    formatter->addInvalidCharacter(composed);
    formatter->removeInvalidCharacter(decomposed);
    QVERIFY(formatter->isInvalidCharacter(composed));
    formatter->removeInvalidCharacter(composed);
    QVERIFY(!formatter->isInvalidCharacter(composed));
}

void FormatterTest::comparesLongStrings()
{
    // Two accents on a letter count the same in either order, wherever in the string they are.
    for (int filling = 55; filling < 75; ++filling) {
        const QString start = QString(filling, u'-') + u"\u00e9"_s;
        const QString end(200, QChar(0x00fc));
        const auto formatter = PDEFormatter::init();
        formatter->addInvalidCharacter(start + u"a\u0323\u0301"_s + end);
        QVERIFY(formatter->isInvalidCharacter(start + u"a\u0301\u0323"_s + end));
        QVERIFY(formatter->isInvalidCharacter(start + u"\u00e1\u0323"_s + end));
        QVERIFY(!formatter->isInvalidCharacter(start + u"a\u0301"_s + end));
    }
}

void FormatterTest::ignoresMissingStrings()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter({});
    QVERIFY(!formatter->isInvalidCharacter(u""_s));
    formatter->addInvalidCharacter(u""_s);
    formatter->removeInvalidCharacter({});
    QVERIFY(formatter->isInvalidCharacter(u""_s));
    QVERIFY(!formatter->isInvalidCharacter({}));
}

void FormatterTest::showsValues_data()
{
    const TestTable<QString, qint32, QVariant, QString> table("format", "style", "object", "shown");
    const auto row = [&table](const char *name, const char16_t *format, qint32 style,
                              const QVariant &object, const char16_t *shown) {
        table.add(name, QString::fromUtf16(format), style, object, QString::fromUtf16(shown));
    };
    row("text", u"%@", 0, u"Tape"_s, u"Tape");
    row("text in a format", u"[%@ mm]", 1, u"12"_s, u"[12 mm]");
    row("text of a numeric style", u"%@", 2, u"12x"_s, u"12x");
    row("text of the decimal style", u"%@", 4, u"1.5"_s, u"1.5");
    row("integer", u"%@", 0, 42, u"42");
    row("negative integer", u"%@", 0, -42LL, u"-42");
    row("large integer", u"%@", 0, 18446744073709551615ULL, u"18446744073709551615");
    row("real", u"%@", 0, 1.5, u"1.5");
    row("truth", u"%@", 0, true, u"1");
    row("nothing", u"%@", 0, {}, u"(null)");
    row("null text", u"%@", 0, QString(), u"(null)");
    row("empty text", u"%@", 0, u""_s, u"");
    row("integer value of a text", u"%d", 2, u"12x"_s, u"12");
    row("integer value of a decimal", u"%d", 4, u"7.9"_s, u"7");
    row("integer value of no number", u"%d", 2, u"x"_s, u"0");
    row("integer value of nothing", u"%d", 2, {}, u"0");
    row("integer value of a real", u"%d", 2, -3.9, u"-3");
    row("integer value of a huge real", u"%d", 2, 1e300, u"2147483647");
    row("integer value of a float", u"%d", 2, 2.7F, u"2");
    row("integer value of a negative float", u"%d", 4, -2.7F, u"-2");
    row("integer value of a huge float", u"%d", 2, -1e30F, u"-2147483648");
    row("integer value of no real", u"%d", 2, std::nan(""), u"0");
    row("integer value of a long integer", u"%d", 2, 0x100000005LL, u"5");
    row("integer value beyond 32 bits", u"%d", 2, u"-9999999999"_s, u"-2147483648");
    row("flags and width", u"%+05d", 2, u"12"_s, u"+0012");
    row("left", u"%-5d|", 2, u"12"_s, u"12   |");
    row("precision", u"%.4d", 2, u"12"_s, u"0012");
    row("hexadecimal", u"%#x", 2, u"255"_s, u"0xff");
    row("with and without an integer", u"%d %@", 2, u"12x"_s, u"12x %@");
    row("percent sign", u"100%% %@", 0, u"x"_s, u"100% x");
    row("no conversion", u"fixed", 0, u"x"_s, u"fixed");
    row("no conversion, numeric", u"fixed", 2, u"x"_s, u"fixed");
    row("empty format", u"", 0, u"x"_s, u"");
    row("unknown conversion", u"%y %@", 0, u"x"_s, u"%y x");
    row("conversion that writes", u"%n%n%n%n", 2, u"7"_s, u"%n%n%n%n");
    row("too many conversions", u"%@ %@ %s %d", 0, u"x"_s, u"x %@ %s %d");
    row("string conversion of a number", u"%s", 2, u"7"_s, u"7");
    row("lone percent sign", u"%@ %", 0, u"x"_s, u"x %");
    row("format in the value", u"%@", 0, u"%@ %s %n"_s, u"%@ %s %n");
    row("other styles take the object itself", u"%d", 6, u"12x"_s, u"12x");
}

void FormatterTest::showsValues()
{
    QFETCH(QString, format);
    QFETCH(qint32, style);
    QFETCH(QVariant, object);
    const auto formatter = PDEFormatter::initWithFormatString(format, style);
    QTEST(formatter->stringForObjectValue(object), "shown");
}

void FormatterTest::showsTheDateOnlyInItsStyle()
{
    const auto formatter = PDEFormatter::initWithFormatString(u"%Y %@"_s, 5);
    QCOMPARE(formatter->stringForObjectValue(u"x"_s), u"%Y x"_s);
    formatter->setCalendarDate(afternoon);
    QCOMPARE(formatter->stringForObjectValue(u"x"_s), u"2024 %@"_s);
    QCOMPARE(formatter->stringForObjectValue({}), u"2024 %@"_s);
    formatter->setTextStyle(6);
    QCOMPARE(formatter->stringForObjectValue(u"x"_s), u"%Y x"_s);
    const auto unset = PDEFormatter::initWithCalendarDate({}, {});
    QCOMPARE(unset->stringForObjectValue(u"x"_s), u"x"_s);
}

void FormatterTest::readsTextsAsTexts()
{
    QString error = u"untouched"_s;
    QVariant object;
    const auto formatter = PDEFormatter::initWithFormatString(u"%03d"_s, 2);
    QVERIFY(formatter->getObjectValue(&object, u"12x"_s, &error));
    QCOMPARE(object, QVariant(u"012"_s));
    QCOMPARE(object.userType(), int(QMetaType::QString));
    formatter->setFormatString({});
    QVERIFY(formatter->getObjectValue(&object, u"12x"_s, nullptr));
    QCOMPARE(object, QVariant(u"12x"_s));
    QVERIFY(formatter->getObjectValue(&object, u""_s, &error));
    QCOMPARE(object, QVariant(u""_s));
    const auto shower = PDEFormatter::initWithCalendarDate(afternoon, {});
    shower->setFormatString(u"%Y"_s);
    QVERIFY(shower->getObjectValue(&object, u"12"_s, &error));
    QCOMPARE(object, QVariant(u"2024"_s));
    QCOMPARE(error, u"untouched"_s);
}

void FormatterTest::readsNothingWithoutTextOrResult()
{
    const auto formatter = PDEFormatter::init();
    QVariant object(5);
    QVERIFY(formatter->getObjectValue(&object, {}, nullptr));
    QCOMPARE(object, QVariant(5));
    QVERIFY(formatter->getObjectValue(nullptr, u"x"_s, nullptr));
}

KV_CORE_TEST(FormatterTest)
#include "tst_formatter.moc"
