// SPDX-License-Identifier: Apache-2.0
#include "Talker.h"
#include "textinput/FormatString.h"

#include "support/SystemCodeset.h"

#include <QEvent>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <clocale>
#include <cmath>
#include <cstring>
#include <limits>

namespace {
enum Plain { PlainMinusTwo = -2 };
enum class Scoped : quint8 { TwoHundred = 200 };

/// A QObject with words of its own.
class TalkingObject : public QObject, public Talker
{
public:
    TalkingObject()
        : Talker(u"words"_s)
    {
    }
};

/// An object whose class has another one before its QObject.
class Offset : public Talker, public QObject
{
public:
    Offset()
        : Talker(u"offset"_s)
    {
    }
};

/// A QObject that begins with something else.
class Late : public QEvent, public QObject
{
public:
    Late()
        : QEvent(QEvent::None)
    {
    }
};

class Silent;

QString address(const void *object)
{
    return u"0x"_s + QString::number(quintptr(object), 16);
}

/// What printf() makes of a number in the plain locale.
template <typename Number>
QString printed(const QByteArray &format, Number number)
{
    QByteArray text(4096, '\0');
    const int size = std::snprintf(text.data(), size_t(text.size()), format.constData(), number);
    return QString::fromLatin1(text.left(size));
}

template <typename... Values>
QString formatted(const QString &format, const Values &...values)
{
    return stringWithFormat(format, {FormatArgument(values)...});
}
} // namespace

/// Texts made of a format and arguments.
class FormatStringTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void fillsTexts();
    void fillsIntegersOfEveryWidth();
    void fillsNumbers();
    void fillsCharacters();
    void fillsAddresses();
    void describesObjects();
    void noneIsNull();
    void readsCStringsInTheSystemEncoding();
    void readsNoFurtherThanThePrecision();
    void formatsIntegersAsPrintfDoes();
    void formatsNumbersAsPrintfDoes();
    void takesWidthAndPrecisionFromArguments();
    void boundsWidthAndPrecision();
    void putsMismatchedArgumentsInWords();
    void leavesPlaceholdersWithoutArguments();
    void leavesWhatIsNoPlaceholder();
    void argumentsArriveWhole_data();
    void argumentsArriveWhole();
    void manyPlaceholders();
    void ignoresTheLocale();
};

void FormatStringTest::cleanup()
{
    setSystemCodeset({});
}

void FormatStringTest::fillsTexts()
{
    QCOMPARE(formatted(u"no placeholder"_s), u"no placeholder"_s);
    QCOMPARE(formatted(u""_s), u""_s);
    QCOMPARE(formatted(QString()), u"(null)"_s);
    QCOMPARE(formatted(u"%@, %s and %@"_s, u"Größe"_s, "あ", "C"), u"Größe, あ and C"_s);
    QCOMPARE(formatted(u"<%@>"_s, u""_s), u"<>"_s);
    QCOMPARE(formatted(u"%%|%5%|%@%%"_s, 1), u"%|%|1%"_s);
    QCOMPARE(formatted(u"<%6@|%-6@|%.2@|%4.1@>"_s, u"abc"_s, u"abc"_s, u"abc"_s, u"abc"_s),
             u"<   abc|abc   |ab|   a>"_s);
    QCOMPARE(formatted(u"<%6s|%-6s>"_s, "abc", "abc"), u"<   abc|abc   >"_s);
}

void FormatStringTest::fillsIntegersOfEveryWidth()
{
    QCOMPARE(formatted(u"%d %i"_s, -1, 7L), u"-1 7"_s);
    QCOMPARE(formatted(u"%d %d"_s, std::numeric_limits<qint32>::min(),
                       std::numeric_limits<qint32>::max()),
             u"-2147483648 2147483647"_s);
    QCOMPARE(formatted(u"%d %lld"_s, std::numeric_limits<qint64>::min(),
                       std::numeric_limits<qint64>::max()),
             u"-9223372036854775808 9223372036854775807"_s);
    QCOMPARE(formatted(u"%u %llu"_s, std::numeric_limits<quint32>::max(),
                       std::numeric_limits<quint64>::max()),
             u"4294967295 18446744073709551615"_s);
    QCOMPARE(formatted(u"%x %lx %u"_s, -1, -1, -1), u"ffffffff ffffffff 4294967295"_s);
    QCOMPARE(formatted(u"%d"_s, std::numeric_limits<quint32>::max()), u"-1"_s);
    QCOMPARE(formatted(u"%hhx %hx %x %02hhx"_s, 0x12345, 0x12345, 0x12345, -1),
             u"45 2345 12345 ff"_s);
    QCOMPARE(formatted(u"%hhd %hd %hhd"_s, 0x1ff, 0x18000, 0x7f), u"-1 -32768 127"_s);
    QCOMPARE(formatted(u"%ld %qd %jd %zd %td"_s, 1, 2, 3, 4, 5), u"1 2 3 4 5"_s);
    QCOMPARE(formatted(u"%d %d %d"_s, qint8(-3), quint8(250), qint16(-9)), u"-3 250 -9"_s);
    QCOMPARE(formatted(u"%d %d"_s, true, false), u"1 0"_s);
    QCOMPARE(formatted(u"%d %d"_s, PlainMinusTwo, Scoped::TwoHundred), u"-2 200"_s);
    QCOMPARE(formatted(u"%@ %@ %@"_s, -5, std::numeric_limits<quint32>::max(), true),
             u"-5 4294967295 1"_s);
}

void FormatStringTest::fillsNumbers()
{
    QCOMPARE(formatted(u"%f %.2f %e %g"_s, 0.5, 2.0F, 12345.678, 0.0001),
             u"0.500000 2.00 1.234568e+04 0.0001"_s);
    QCOMPARE(formatted(u"%f %.1f %g"_s, 3, -2, quint64(1) << 63), u"3.000000 -2.0 9.22337e+18"_s);
    QCOMPARE(formatted(u"%.3f"_s, 1.5L), u"1.500"_s);
    QCOMPARE(formatted(u"%f %F %g"_s, std::nan(""), -HUGE_VAL, HUGE_VAL), u"nan -INF inf"_s);
    QCOMPARE(formatted(u"%@ %@"_s, 0.1, 1e300), u"0.1 1e+300"_s);
    QCOMPARE(formatted(u"%f"_s, std::numeric_limits<double>::max()).size(), 316);
}

void FormatStringTest::fillsCharacters()
{
    QCOMPARE(formatted(u"%c%c%C|%3c|%-3c|"_s, 'K', 0x76, u'あ', 'x', 'y'), u"Kvあ|  x|y  |"_s);
    QCOMPARE(formatted(u"%c %C"_s, 0x1F600, U'\U0001F600'), u"\U0001F600 \U0001F600"_s);
    QCOMPARE(formatted(u"%c %c"_s, char(-28), -128), u"\u00e4 \u0080"_s);
    QCOMPARE(formatted(u"%c"_s, 0), QString(QChar::Null));
    QCOMPARE(formatted(u"%c %c %c"_s, -129, 0x110000, 0x10ffff), u"-129 1114112 \U0010ffff"_s);
    QCOMPARE(formatted(u"%c %@"_s, QChar(u'ä'), QChar(u'ö')), u"ä ö"_s);
}

void FormatStringTest::fillsAddresses()
{
    const int number = 5;
    const char text[] = "text";
    const QObject object;
    QCOMPARE(formatted(u"%p %p %p"_s, &number, text, &object),
             QStringList({address(&number), address(text), address(&object)}).join(u' '));
    QCOMPARE(formatted(u"%p|%6p|%-6p|"_s, nullptr, nullptr, nullptr), u"0x0|   0x0|0x0   |"_s);
    QCOMPARE(formatted(u"%@"_s, static_cast<const void *>(&number)), address(&number));
    QCOMPARE(formatted(u"%p"_s, 42), u"42"_s);
}

void FormatStringTest::describesObjects()
{
    QObject plain;
    QCOMPARE(formatted(u"%@"_s, &plain), u"<QObject "_s + address(&plain) + u'>');
    plain.setObjectName(u"%1 %2 %@ \"Größe\""_s);
    QCOMPARE(formatted(u"%@"_s, &plain),
             u"<QObject "_s + address(&plain) + u" \"%1 %2 %@ \"Größe\"\">"_s);
    QCOMPARE(formatted(u"%@"_s, this), u"<FormatStringTest "_s + address(this) + u'>');

    const Talker talker(u"I talk"_s);
    const TalkingObject talking;
    const Offset offset;
    QCOMPARE(formatted(u"%@, %s, %d"_s, &talker, &talking, &offset), u"I talk, words, offset"_s);
    QCOMPARE(formatted(u"%p"_s, &offset), address(&offset));
    const QObject *const inner = &offset;
    QCOMPARE(formatted(u"%@"_s, inner), u"<QObject "_s + address(inner) + u'>');

    const Late late;
    const QObject *const inLate = &late;
    QVERIFY(static_cast<const void *>(inLate) != &late);
    QCOMPARE(formatted(u"%@"_s, &late), u"<QObject "_s + address(inLate) + u'>');

    int place = 0;
    auto *const unknown = reinterpret_cast<Silent *>(&place);
    QCOMPARE(formatted(u"%@"_s, unknown), address(&place));
}

void FormatStringTest::noneIsNull()
{
    const QObject *const object = nullptr;
    const char *const text = nullptr;
    const void *const place = nullptr;
    QCOMPARE(formatted(u"%@ %@ %@ %@ %@"_s, nullptr, object, text, place, QString()),
             u"(null) (null) (null) (null) (null)"_s);
    QCOMPARE(formatted(u"%s %d %f %c %.3s"_s, text, object, nullptr, nullptr, "abcd"),
             u"(null) (null) (null) (null) abc"_s);
}

void FormatStringTest::readsCStringsInTheSystemEncoding()
{
    QCOMPARE(formatted(u"%s"_s, "Gr\xc3\xb6\xc3\x9f"), u"Größ"_s);
    setSystemCodeset("Shift_JIS");
    QCOMPARE(formatted(u"%s %@"_s, "\x83\x65", "\x83\x65"), u"テ テ"_s);
    // In UTF-8 though the system is not.
    setSystemCodeset("US-ASCII");
    QCOMPARE(formatted(u"%s"_s, "Gr\xc3\xb6\xc3\x9f"), u"Größ"_s);
    // In neither.
    QCOMPARE(formatted(u"%s"_s, "Gr\xf6\xdf"), u"Größ"_s);
    QCOMPARE(formatted(u"%s|%s"_s, "", "\xff"), u"|ÿ"_s);
}

void FormatStringTest::readsNoFurtherThanThePrecision()
{
    const auto unterminated = std::make_unique<char[]>(4);
    std::memcpy(unterminated.get(), "abcd", 4);
    QCOMPARE(formatted(u"%.4s|%.2s|%.0s|%.s|%5.1s"_s, unterminated.get(), unterminated.get(),
                       unterminated.get(), unterminated.get(), unterminated.get()),
             u"abcd|ab|||    a"_s);
    QCOMPARE(formatted(u"%.*s|%.9s"_s, 3, unterminated.get(), "ab"), u"abc|ab"_s);
    // The precision counts bytes, and what is left of a character goes.
    QCOMPARE(formatted(u"%.3s|%.4s"_s, "Gr\xc3\xb6", "Gr\xc3\xb6"), u"Gr|Grö"_s);
}

void FormatStringTest::formatsIntegersAsPrintfDoes()
{
    const int numbers[] = {
        0, 1, -1, 42, -12345, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()};
    for (int flags = 0; flags < 32; ++flags) {
        QByteArray start = "%";
        for (int flag = 0; flag < 5; ++flag) {
            if (flags & (1 << flag)) {
                start += "-+ #0"[flag];
            }
        }
        for (const char *const size : {"", "1", "8", "20", ".", ".0", ".3", "12.5", "5.12"}) {
            for (const char letter : QByteArray("diuxXo")) {
                const QByteArray format = start + size + letter;
                for (const int number : numbers) {
                    QCOMPARE(formatted(QString::fromLatin1(format), number),
                             printed(format, number));
                }
            }
        }
    }
}

void FormatStringTest::formatsNumbersAsPrintfDoes()
{
    const double numbers[] = {0.0, -0.0, 1.0, -2.5, 123456789.125, 1e-7, 6.02e23};
    for (const char *const flags : {"", "-", "+", " ", "#", "0", "+0", "-#", " 0"}) {
        for (const char *const size : {"", "3", "18", ".", ".0", ".1", ".10", "20.3"}) {
            for (const char letter : QByteArray("fFeEgGaA")) {
                const QByteArray format = QByteArray("%") + flags + size + letter;
                for (const double number : numbers) {
                    QCOMPARE(formatted(QString::fromLatin1(format), number),
                             printed(format, number));
                }
            }
        }
    }
}

void FormatStringTest::takesWidthAndPrecisionFromArguments()
{
    QCOMPARE(formatted(u"%*d|%*d|%-*d|"_s, 4, 7, -4, 7, 4, 7), u"   7|7   |7   |"_s);
    QCOMPARE(formatted(u"%.*f|%.*f|%*.*f"_s, 1, 0.25, -1, 0.25, 6, 2, 0.25),
             u"0.2|0.250000|  0.25"_s);
    QCOMPARE(formatted(u"%*@|%.*@"_s, 4, u"ab"_s, 1, u"ab"_s), u"  ab|a"_s);
    // A width that is none.
    QCOMPARE(formatted(u"%*d|"_s, u"wide"_s, 7), u"7|"_s);
}

void FormatStringTest::boundsWidthAndPrecision()
{
    const QString widest(65536 - 1, u' ');
    QCOMPARE(formatted(u"%99999999999999999999d"_s, 7), widest + u'7');
    QCOMPARE(formatted(u"%*d"_s, std::numeric_limits<qint64>::max(), 7), widest + u'7');
    QCOMPARE(formatted(u"%*@"_s, std::numeric_limits<qint64>::min(), u"7"_s), u'7' + widest);
    QCOMPARE(formatted(u"%.99999999999d"_s, 7), QString(65535, u'0') + u'7');
    QCOMPARE(formatted(u"%.2147483647s"_s, "ab"), u"ab"_s);
}

void FormatStringTest::putsMismatchedArgumentsInWords()
{
    QCOMPARE(formatted(u"%d %x %.1f %c"_s, u"one"_s, "two", u"three"_s, u"four"_s),
             u"one two three four"_s);
    QCOMPARE(formatted(u"%d %c %s"_s, 2.75, 2.75, 5), u"2.75 2.75 5"_s);
    QCOMPARE(formatted(u"%6d|%-6f|"_s, u"ab"_s, u"cd"_s), u"    ab|cd    |"_s);
    const Talker talker(u"words"_s);
    QCOMPARE(formatted(u"%d %s"_s, &talker, &talker), u"words words"_s);
    QCOMPARE(formatted(u"%@"_s, 1, 2, 3), u"1"_s);
}

void FormatStringTest::leavesPlaceholdersWithoutArguments()
{
    QCOMPARE(formatted(u"%@ %d"_s), u"%@ %d"_s);
    QCOMPARE(formatted(u"%d of %-5.2d!"_s, 1), u"1 of %-5.2d!"_s);
    QCOMPARE(formatted(u"%*d"_s), u"%*d"_s);
    QCOMPARE(formatted(u"%*.*lld|"_s, 3, 3), u"%*.*lld|"_s);
}

void FormatStringTest::leavesWhatIsNoPlaceholder()
{
    QCOMPARE(formatted(u"%y %d"_s, 1), u"%y 1"_s);
    QCOMPARE(formatted(u"%n%d"_s, 1), u"%n1"_s);
    QCOMPARE(formatted(u"100%"_s, 1), u"100%"_s);
    QCOMPARE(formatted(u"%-08.3ll"_s, 1), u"%-08.3ll"_s);
    QCOMPARE(formatted(u"%あ%d"_s, 1), u"%あ1"_s);
    QCOMPARE(formatted(u"%\n%d"_s, 1), u"%\n1"_s);
    QCOMPARE(formatted(u"%\U0001F600%d"_s, 1), u"%\U0001F6001"_s);
    QCOMPARE(formatted(QString(QChar(0xd800)) + u"%d"_s, 1), QString(QChar(0xd800)) + u'1');
    QCOMPARE(formatted(u"a%\0b%d"_s, 1), u"a%\0b1"_s);
}

void FormatStringTest::argumentsArriveWhole_data()
{
    const TestTable<QString> table("text");
    table.add("percent signs", u"50% %@ %d %n %s %% %1 %*.*f"_s);
    table.add("newlines", u"one\ntwo\r\n\nthree\n"_s);
    table.add("beyond ASCII", u"Größe あ \U0001F600 עברית"_s);
    table.add("null character", u"a\0b"_s);
    table.add("lone surrogate", u"a"_s + QChar(0xdc00) + u'b');
    table.add("enormous", QString(1 << 20, u'ä'));
}

void FormatStringTest::argumentsArriveWhole()
{
    QFETCH(QString, text);
    QCOMPARE(formatted(u"<%@|%d>"_s, text, 5), u'<' + text + u"|5>"_s);
    QCOMPARE(formatted(u"<%d|%@>"_s, text, 5), u'<' + text + u"|5>"_s);
    const Talker talker(text);
    QCOMPARE(formatted(u"%d%@%d"_s, 1, &talker, 2), u'1' + text + u'2');
    if (!text.contains(QChar::Null) && text.isValidUtf16()) {
        const QByteArray bytes = text.toUtf8();
        QCOMPARE(formatted(u"%s|%d"_s, bytes.constData(), 5), text + u"|5"_s);
    }
}

void FormatStringTest::manyPlaceholders()
{
    QCOMPARE(formatted(u"%d"_s.repeated(1 << 18), 1), u'1' + u"%d"_s.repeated((1 << 18) - 1));
    QCOMPARE(formatted(u"%%"_s.repeated(1 << 19)), QString(1 << 19, u'%'));
    QCOMPARE(formatted(u'%' + QString(1 << 20, u'0') + u"3d"_s, 7), u"007"_s);
}

void FormatStringTest::ignoresTheLocale()
{
    const QTemporaryDir locales;
    QProcess::execute(u"localedef"_s, {u"-i"_s, u"de_DE"_s, u"-f"_s, u"UTF-8"_s,
                                       locales.filePath(u"de_DE.UTF-8"_s)});
    qputenv("LOCPATH", QFile::encodeName(locales.path()));
    if (!std::setlocale(LC_NUMERIC, "de_DE.UTF-8")) {
        QSKIP("No sources of locales here.");
    }
    const QString plain = printed("%.1f", 0.5);
    const QString number = formatted(u"%.1f %@ %'d"_s, 0.5, 0.5, 1234567);
    const QString after = printed("%.1f", 0.5);
    std::setlocale(LC_NUMERIC, "C");
    QCOMPARE(plain, u"0,5"_s);
    QCOMPARE(number, u"0.5 0.5 1234567"_s);
    QCOMPARE(after, u"0,5"_s);
}

KV_CORE_TEST(FormatStringTest)
#include "tst_formatstring.moc"
