// SPDX-License-Identifier: Apache-2.0
#include "printcore/Gestalt.h"
#include "printcore/IntegerValue.h"
#include "printcore/SystemEncoding.h"
#include "support/SystemCodeset.h"

#include <QTest>

#include <limits>

using Bytes = std::optional<QByteArray>;

/// Text encodings, numbers in texts and the system's version.
class EncodingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void systemEncodingIsTheLocalesUntilChosen();
    void systemEncodingAppliesToTexts();
    void everyAvailableEncodingHoldsASCII();
    void mostWantedEncodingsComeFirst();
    void encodes_data();
    void encodes();
    void refusesTextThatAnEncodingDoesNotHold_data();
    void refusesTextThatAnEncodingDoesNotHold();
    void refusesUnknownEncodings_data();
    void refusesUnknownEncodings();
    void emptyTextHasNoBytes();
    void longTextsPass();
    void decodes_data();
    void decodes();
    void refusesMalformedBytes_data();
    void refusesMalformedBytes();
    void emptyBytesAreAnEmptyText();
    void unknownSystemEncodingDecodesNothing();

    void readsIntegers_data();
    void readsIntegers();

    void tellsTheSystemVersion();
    void leavesTheResponseAloneWhenItFails();
};

void EncodingTest::cleanup()
{
    setSystemCodeset({});
}

void EncodingTest::systemEncodingIsTheLocalesUntilChosen()
{
    // The tests run in a locale with this codeset.
    QCOMPARE(SystemEncoding::name(), QByteArray("UTF-8"));
    setSystemCodeset("Shift_JIS");
    QCOMPARE(SystemEncoding::name(), QByteArray("Shift_JIS"));
    setSystemCodeset({});
    QCOMPARE(SystemEncoding::name(), QByteArray("UTF-8"));
}

void EncodingTest::systemEncodingAppliesToTexts()
{
    QCOMPARE(SystemEncoding::encode(u"é"_s), Bytes("\xc3\xa9"));
    setSystemCodeset("ISO-8859-1");
    QCOMPARE(SystemEncoding::encode(u"é"_s), Bytes("\xe9"));
    QCOMPARE(SystemEncoding::encode(u"あ"_s), Bytes());
    QCOMPARE(SystemEncoding::decode("\xe9"), u"é"_s);
}

void EncodingTest::everyAvailableEncodingHoldsASCII()
{
    for (const char *const encoding : SystemEncoding::availableStringEncodings()) {
        const bool isWide = qstrcmp(encoding, "UTF-16BE") == 0;
        QCOMPARE(SystemEncoding::encode(u"A"_s, encoding),
                 Bytes(isWide ? QByteArray("\0A", 2) : QByteArray("A")));
    }
}

void EncodingTest::mostWantedEncodingsComeFirst()
{
    QByteArrayList names;
    for (const char *const encoding : SystemEncoding::availableStringEncodings())
        names.append(encoding);
    QCOMPARE(names.join(' '), QByteArray("US-ASCII ISO-8859-1 macintosh windows-1252 ISO-8859-2 "
                                         "Shift_JIS EUC-JP UTF-16BE UTF-8"));
}

void EncodingTest::encodes_data()
{
    const TestTable<QString, QByteArray, QByteArray> table("text", "encoding", "bytes");
    table.add("ASCII", u"Tape 12"_s, "US-ASCII", "Tape 12");
    table.add("Latin-1", u"Größe"_s, "ISO-8859-1",
              "Gr\xf6\xdf"
              "e");
    table.add("Latin-2", u"ž"_s, "ISO-8859-2", "\xbe");
    table.add("Windows", u"€"_s, "windows-1252", "\x80");
    table.add("Mac OS Roman", u"é†Ω"_s, QByteArray(SystemEncoding::kMacOSRoman), "\x8e\xa0\xbd");
    table.add("Shift JIS", u"あ漢"_s, "Shift_JIS", "\x82\xa0\x8a\xbf");
    table.add("EUC", u"あ"_s, "EUC-JP", "\xa4\xa2");
    table.add("UTF-16", u"A\U0001F600"_s, "UTF-16BE", QByteArray("\0A\xd8\x3d\xde\0", 6));
    table.add("UTF-8", u"é\U0001F600"_s, "UTF-8", "\xc3\xa9\xf0\x9f\x98\x80");
    table.add("null character", QString(QChar(u'\0')), "US-ASCII", QByteArray("\0", 1));
    table.add("another spelling", u"é"_s, "latin1", "\xe9");
}

void EncodingTest::encodes()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, encoding);
    QFETCH(QByteArray, bytes);
    QCOMPARE(SystemEncoding::encode(text, encoding), Bytes(bytes));
    QCOMPARE(SystemEncoding::encode(text, encoding), Bytes(bytes));
}

void EncodingTest::refusesTextThatAnEncodingDoesNotHold_data()
{
    const TestTable<QString, QByteArray> table("text", "encoding");
    table.add("accent in ASCII", u"café"_s, "US-ASCII");
    table.add("euro in Latin-1", u"€"_s, "ISO-8859-1");
    table.add("kana in Mac OS Roman", u"あ"_s, QByteArray(SystemEncoding::kMacOSRoman));
    table.add("look-alike letter", u"Ａ"_s, "windows-1252");
    table.add("invisible soft hyphen", u"a\u00adb"_s, "US-ASCII");
    table.add("invisible joiner", u"a\u200db"_s, "ISO-8859-1");
    table.add("half a pair in UTF-8", QString(QChar(0xd83d)), "UTF-8");
    table.add("half a pair in UTF-16", QString(QChar(0xde00)), "UTF-16BE");
}

void EncodingTest::refusesTextThatAnEncodingDoesNotHold()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, encoding);
    QCOMPARE(SystemEncoding::encode(text, encoding), Bytes());
    QCOMPARE(SystemEncoding::encode(u"A1"_s, encoding).has_value(), true);
}

void EncodingTest::refusesUnknownEncodings_data()
{
    const TestTable<QByteArray> table("encoding");
    table.add("none", QByteArray());
    table.add("invented", "no-such-encoding");
    table.add("path", "../../etc/passwd");
    table.add("long", QByteArray(100'000, 'x'));
}

void EncodingTest::refusesUnknownEncodings()
{
    QFETCH(QByteArray, encoding);
    QCOMPARE(SystemEncoding::encode(u"A"_s, encoding), Bytes());
}

void EncodingTest::emptyTextHasNoBytes()
{
    for (const char *const encoding : SystemEncoding::availableStringEncodings()) {
        QCOMPARE(SystemEncoding::encode(QString(), encoding), Bytes(QByteArray()));
        QCOMPARE(SystemEncoding::encode(u""_s, encoding), Bytes(QByteArray()));
    }
}

void EncodingTest::longTextsPass()
{
    const qsizetype length = 1'000'000;
    const QString text(length, u'あ');
    const Bytes bytes = SystemEncoding::encode(text);
    QVERIFY(bytes);
    QCOMPARE(bytes->size(), 3 * length);
    QCOMPARE(SystemEncoding::decode(bytes->constData()), text);
}

void EncodingTest::decodes_data()
{
    const TestTable<QByteArray, QByteArray, QString> table("encoding", "bytes", "text");
    table.add("UTF-8", QByteArray(), "\xc3\xa9 \xf0\x9f\x98\x80", u"é \U0001F600"_s);
    table.add("Shift JIS", "Shift_JIS", "\x82\xa0", u"あ"_s);
    table.add("Mac OS Roman", QByteArray(SystemEncoding::kMacOSRoman), "\x8e", u"é"_s);
}

void EncodingTest::decodes()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QByteArray, bytes);
    setSystemCodeset(encoding);
    QTEST(SystemEncoding::decode(bytes.constData()), "text");
}

void EncodingTest::refusesMalformedBytes_data()
{
    const TestTable<QByteArray, QByteArray> table("encoding", "bytes");
    table.add("stray byte", "UTF-8", "a\xff");
    table.add("cut off", "UTF-8", "a\xe3\x81");
    table.add("overlong", "UTF-8", "\xc0\xaf");
    table.add("surrogate", "UTF-8", "\xed\xa0\xbd");
    table.add("8 bits in ASCII", "US-ASCII", "\xe9");
    table.add("half a kana", "Shift_JIS", "\x82");
}

void EncodingTest::refusesMalformedBytes()
{
    QFETCH(QByteArray, encoding);
    QFETCH(QByteArray, bytes);
    setSystemCodeset(encoding);
    QVERIFY(SystemEncoding::decode(bytes.constData()).isNull());
    QCOMPARE(SystemEncoding::decode("fine"), u"fine"_s);
}

void EncodingTest::emptyBytesAreAnEmptyText()
{
    const QString text = SystemEncoding::decode("");
    QVERIFY(text.isEmpty());
    QVERIFY(!text.isNull());
    QVERIFY(SystemEncoding::decode(nullptr).isNull());
}

void EncodingTest::unknownSystemEncodingDecodesNothing()
{
    setSystemCodeset("no-such-encoding");
    QVERIFY(SystemEncoding::decode("a").isNull());
    QCOMPARE(SystemEncoding::encode(u"a"_s), Bytes());
}

void EncodingTest::readsIntegers_data()
{
    const TestTable<QString, qint32> table("text", "value");
    table.add("number", u"62"_s, 62);
    table.add("minus", u"-7"_s, -7);
    table.add("plus", u"+7"_s, 7);
    table.add("white space", u" \t\n 12"_s, 12);
    table.add("trailing text", u"12mm"_s, 12);
    table.add("decimals", u"12.9"_s, 12);
    table.add("leading zeros", u"0012"_s, 12);
    table.add("two signs", u"+-3"_s, 0);
    table.add("space after the sign", u"- 3"_s, 0);
    table.add("no digits", u"W12"_s, 0);
    table.add("sign alone", u"-"_s, 0);
    table.add("empty", u""_s, 0);
    table.add("null", QString(), 0);
    table.add("hexadecimal", u"0x1F"_s, 0);
    table.add("digits beyond ASCII", u"１２"_s, 0);
    table.add("largest", u"2147483647"_s, std::numeric_limits<qint32>::max());
    table.add("beyond the largest", u"2147483648"_s, std::numeric_limits<qint32>::max());
    table.add("smallest", u"-2147483648"_s, std::numeric_limits<qint32>::min());
    table.add("beyond the smallest", u"-2147483649"_s, std::numeric_limits<qint32>::min());
    table.add("endless", QString(100'000, u'9'), std::numeric_limits<qint32>::max());
    table.add("endless minus", u'-' + QString(100'000, u'9'), std::numeric_limits<qint32>::min());
}

void EncodingTest::readsIntegers()
{
    QFETCH(QString, text);
    QTEST(integerValue(text), "value");
}

void EncodingTest::tellsTheSystemVersion()
{
    qint32 major = -1;
    qint32 minor = -1;
    qint32 bugFix = -1;
    QCOMPARE(Gestalt(gestaltSystemVersionMajor, &major), noErr);
    QCOMPARE(Gestalt(gestaltSystemVersionMinor, &minor), noErr);
    QCOMPARE(Gestalt(gestaltSystemVersionBugFix, &bugFix), noErr);
    QCOMPARE(major, 13);
    QCOMPARE(minor, 0);
    QCOMPARE(bugFix, 0);
}

void EncodingTest::leavesTheResponseAloneWhenItFails()
{
    qint32 response = 77;
    QCOMPARE(Gestalt(0x73797376, &response), gestaltUndefSelectorErr);
    QCOMPARE(Gestalt(gestaltSystemVersionMajor, nullptr), kPMInvalidParameter);
    QCOMPARE(response, 77);
}

KV_CORE_TEST(EncodingTest)
#include "tst_encoding.moc"
