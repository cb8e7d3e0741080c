#include "textinput/PDEFormatter.h"

#include <QTest>

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
constexpr qint32 largest = std::numeric_limits<qint32>::max();
constexpr qint32 smallest = std::numeric_limits<qint32>::min();
const QDateTime date(QDate(2024, 7, 4), QTime(16, 5, 9), QTimeZone::utc());
} // namespace

void FormatterTest::initialisersSetFormatAndStyle()
{
    QCOMPARE(PDEFormatter::init()->formatString(), u"%@"_qs);
    QCOMPARE(PDEFormatter::init()->textStyle(), 0);
    QCOMPARE(PDEFormatter::initWithStyle(7)->formatString(), u"%@"_qs);
    QCOMPARE(PDEFormatter::initWithStyle(7)->textStyle(), 7);
    QCOMPARE(PDEFormatter::initWithStyle(-3)->textStyle(), -3);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_qs)->formatString(), u"%d mm"_qs);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_qs)->textStyle(), 0);
    QCOMPARE(PDEFormatter::initWithFormatString({})->formatString(), u"%@"_qs);
    QCOMPARE(PDEFormatter::initWithFormatString(u""_qs)->formatString(), u""_qs);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_qs, 2)->formatString(), u"%d mm"_qs);
    QCOMPARE(PDEFormatter::initWithFormatString(u"%d mm"_qs, 2)->textStyle(), 2);
    QCOMPARE(PDEFormatter::initWithFormatString({}, 4)->formatString(), u"%@"_qs);
}

void FormatterTest::initialiserTakesACalendarDate()
{
    const QVariantMap locale{{u"NSAMPMDesignation"_qs, QStringList{u"vorm."_qs, u"nachm."_qs}}};
    const auto formatter = PDEFormatter::initWithCalendarDate(date, locale);
    QCOMPARE(formatter->textStyle(), 5);
    QCOMPARE(formatter->calendarDate(), date);
    QCOMPARE(formatter->calendarLocale(), locale);
    QVERIFY(formatter->formatString().isNull());
    QCOMPARE(formatter->stringForObjectValue({}), u"2024-07-04 16:05:09 +0000"_qs);
    formatter->setFormatString(u"%I %p"_qs);
    QCOMPARE(formatter->stringForObjectValue({}), u"04 nachm."_qs);
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
    QVERIFY(!formatter->isInvalidCharacter(u"x"_qs));
    QVERIFY(!formatter->isInvalidCharacter(u""_qs));
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
    formatter->setCalendarDate(date);
    QCOMPARE(formatter->calendarDate(), date);
    formatter->setCalendarDate({});
    QVERIFY(!formatter->calendarDate().isValid());
    formatter->setCalendarLocale({{u"NSDateFormatString"_qs, u"%d"_qs}});
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
    const auto formatter = PDEFormatter::initWithFormatString(u"%d"_qs);
    formatter->setFormatString({});
    QCOMPARE(formatter->formatString(), u"%@"_qs);
    formatter->setFormatString(u"<%@>"_qs);
    QCOMPARE(formatter->formatString(), u"<%@>"_qs);
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
    formatter->addInvalidCharacter(u"x"_qs);
    formatter->addInvalidCharacter(u"abc"_qs);
    QVERIFY(formatter->isInvalidCharacter(u"x"_qs));
    QVERIFY(formatter->isInvalidCharacter(u"abc"_qs));
    QVERIFY(!formatter->isInvalidCharacter(u"xy"_qs));
    QVERIFY(!formatter->isInvalidCharacter(u"ab"_qs));
    QVERIFY(!formatter->isInvalidCharacter(u"X"_qs));
    QVERIFY(!formatter->isInvalidCharacter(u""_qs));
}

void FormatterTest::removesEveryEqualString()
{
    const auto formatter = PDEFormatter::init();
    for (const QString &string : {u"x"_qs, u"y"_qs, u"x"_qs, u"x"_qs}) {
        formatter->addInvalidCharacter(string);
    }
    formatter->removeInvalidCharacter(u"z"_qs);
    QVERIFY(formatter->isInvalidCharacter(u"x"_qs));
    formatter->removeInvalidCharacter(u"x"_qs);
    QVERIFY(!formatter->isInvalidCharacter(u"x"_qs));
    QVERIFY(formatter->isInvalidCharacter(u"y"_qs));
}

void FormatterTest::removesWhatComparesEqual()
{
    const QString composed = u"\u00e9"_qs;
    const QString decomposed = u"e\u0301"_qs;
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter(composed);
    QVERIFY(formatter->isInvalidCharacter(decomposed));
    QVERIFY(!formatter->isInvalidCharacter(u"e"_qs));

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
        const QString start = QString(filling, u'-') + u"\u00e9"_qs;
        const QString end(200, QChar(0x00fc));
        const auto formatter = PDEFormatter::init();
        formatter->addInvalidCharacter(start + u"a\u0323\u0301"_qs + end);
        QVERIFY(formatter->isInvalidCharacter(start + u"a\u0301\u0323"_qs + end));
        QVERIFY(formatter->isInvalidCharacter(start + u"\u00e1\u0323"_qs + end));
        QVERIFY(!formatter->isInvalidCharacter(start + u"a\u0301"_qs + end));
    }
}

void FormatterTest::ignoresMissingStrings()
{
    const auto formatter = PDEFormatter::init();
    formatter->addInvalidCharacter({});
    QVERIFY(!formatter->isInvalidCharacter(u""_qs));
    formatter->addInvalidCharacter(u""_qs);
    formatter->removeInvalidCharacter({});
    QVERIFY(formatter->isInvalidCharacter(u""_qs));
    QVERIFY(!formatter->isInvalidCharacter({}));
}

void FormatterTest::showsValues_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<qint32>("style");
    QTest::addColumn<QVariant>("object");
    QTest::addColumn<QString>("shown");

    const auto row = [](const char *name, const char16_t *format, qint32 style,
                        const QVariant &object, const char16_t *shown) {
        QTest::newRow(name) << QString::fromUtf16(format) << style << object
                            << QString::fromUtf16(shown);
    };
    row("text", u"%@", 0, u"Tape"_qs, u"Tape");
    row("text in a format", u"[%@ mm]", 1, u"12"_qs, u"[12 mm]");
    row("text of a numeric style", u"%@", 2, u"12x"_qs, u"12x");
    row("text of the decimal style", u"%@", 4, u"1.5"_qs, u"1.5");
    row("integer", u"%@", 0, 42, u"42");
    row("negative integer", u"%@", 0, -42LL, u"-42");
    row("large integer", u"%@", 0, 18446744073709551615ULL, u"18446744073709551615");
    row("real", u"%@", 0, 1.5, u"1.5");
    row("truth", u"%@", 0, true, u"1");
    row("nothing", u"%@", 0, {}, u"(null)");
    row("null text", u"%@", 0, QString(), u"(null)");
    row("empty text", u"%@", 0, u""_qs, u"");
    row("integer value of a text", u"%d", 2, u"12x"_qs, u"12");
    row("integer value of a decimal", u"%d", 4, u"7.9"_qs, u"7");
    row("integer value of no number", u"%d", 2, u"x"_qs, u"0");
    row("integer value of nothing", u"%d", 2, {}, u"0");
    row("integer value of a real", u"%d", 2, -3.9, u"-3");
    row("integer value of a huge real", u"%d", 2, 1e300, u"2147483647");
    row("integer value of a long integer", u"%d", 2, 0x100000005LL, u"5");
    row("integer value beyond 32 bits", u"%d", 2, u"-9999999999"_qs, u"-2147483648");
    row("flags and width", u"%+05d", 2, u"12"_qs, u"+0012");
    row("left", u"%-5d|", 2, u"12"_qs, u"12   |");
    row("precision", u"%.4d", 2, u"12"_qs, u"0012");
    row("hexadecimal", u"%#x", 2, u"255"_qs, u"0xff");
    row("with and without an integer", u"%d %@", 2, u"12x"_qs, u"12x %@");
    row("percent sign", u"100%% %@", 0, u"x"_qs, u"100% x");
    row("no conversion", u"fixed", 0, u"x"_qs, u"fixed");
    row("no conversion, numeric", u"fixed", 2, u"x"_qs, u"fixed");
    row("empty format", u"", 0, u"x"_qs, u"");
    row("unknown conversion", u"%y %@", 0, u"x"_qs, u"%y x");
    row("conversion that writes", u"%n%n%n%n", 2, u"7"_qs, u"%n%n%n%n");
    row("too many conversions", u"%@ %@ %s %d", 0, u"x"_qs, u"x %@ %s %d");
    row("string conversion of a number", u"%s", 2, u"7"_qs, u"7");
    row("lone percent sign", u"%@ %", 0, u"x"_qs, u"x %");
    row("format in the value", u"%@", 0, u"%@ %s %n"_qs, u"%@ %s %n");
    row("other styles take the object itself", u"%d", 6, u"12x"_qs, u"12x");
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
    const auto formatter = PDEFormatter::initWithFormatString(u"%Y %@"_qs, 5);
    QCOMPARE(formatter->stringForObjectValue(u"x"_qs), u"%Y x"_qs);
    formatter->setCalendarDate(date);
    QCOMPARE(formatter->stringForObjectValue(u"x"_qs), u"2024 %@"_qs);
    QCOMPARE(formatter->stringForObjectValue({}), u"2024 %@"_qs);
    formatter->setTextStyle(6);
    QCOMPARE(formatter->stringForObjectValue(u"x"_qs), u"%Y x"_qs);
    const auto unset = PDEFormatter::initWithCalendarDate({}, {});
    QCOMPARE(unset->stringForObjectValue(u"x"_qs), u"x"_qs);
}

void FormatterTest::readsTextsAsTexts()
{
    QString error = u"untouched"_qs;
    QVariant object;
    const auto formatter = PDEFormatter::initWithFormatString(u"%03d"_qs, 2);
    QVERIFY(formatter->getObjectValue(&object, u"12x"_qs, &error));
    QCOMPARE(object, QVariant(u"012"_qs));
    QCOMPARE(object.userType(), int(QMetaType::QString));
    formatter->setFormatString({});
    QVERIFY(formatter->getObjectValue(&object, u"12x"_qs, nullptr));
    QCOMPARE(object, QVariant(u"12x"_qs));
    QVERIFY(formatter->getObjectValue(&object, u""_qs, &error));
    QCOMPARE(object, QVariant(u""_qs));
    const auto shower = PDEFormatter::initWithCalendarDate(date, {});
    shower->setFormatString(u"%Y"_qs);
    QVERIFY(shower->getObjectValue(&object, u"12"_qs, &error));
    QCOMPARE(object, QVariant(u"2024"_qs));
    QCOMPARE(error, u"untouched"_qs);
}

void FormatterTest::readsNothingWithoutTextOrResult()
{
    const auto formatter = PDEFormatter::init();
    QVariant object(5);
    QVERIFY(formatter->getObjectValue(&object, {}, nullptr));
    QCOMPARE(object, QVariant(5));
    QVERIFY(formatter->getObjectValue(nullptr, u"x"_qs, nullptr));
}

QTEST_GUILESS_MAIN(FormatterTest)
#include "tst_formatter.moc"
