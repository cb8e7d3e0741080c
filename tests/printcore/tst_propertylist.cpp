// SPDX-License-Identifier: Apache-2.0
#include "printcore/PropertyList.h"

#include <QDateTime>
#include <QLocale>
#include <QRect>
#include <QTest>

#include <clocale>
#include <cmath>
#include <limits>

namespace {
/// A document with the content in its third line.
QByteArray xml(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + content +
           "\n</plist>\n";
}

QByteArray xmlString(const QByteArray &text)
{
    return xml("<string>" + text + "</string>");
}

/// The text that makes a document of a string as long as that.
QByteArray textToSize(int size)
{
    return QByteArray(size - int(xmlString("").size()), 'x');
}

/// A document's start and end, without what a test's output cannot show.
QByteArray rowName(const QByteArray &data)
{
    const QByteArray ends = data.size() > 200 ? data.left(100) + " ... " + data.right(50) : data;
    return ends.simplified().toPercentEncoding(" <>/\"'=!?&;,.:[]{}()#");
}

/// A short document that stands for 2^40 empty texts.
QByteArray entityBomb()
{
    QByteArray document = "<!DOCTYPE plist [<!ENTITY % e0 ''>";
    for (int i = 1; i <= 40; ++i) {
        const QByteArray former = "&#37;e" + QByteArray::number(i - 1) + ";";
        document += "<!ENTITY % e" + QByteArray::number(i) + " '" + former + former + "'>";
    }
    return document + "%e40;]><plist><true/></plist>";
}

QDateTime utc(const char *date)
{
    return QDateTime::fromString(QLatin1String(date), Qt::ISODate);
}

QVariantMap everyType()
{
    return {
        {u"text <&>"_s, u"Größe <12> & \U0001F600"_s},
        {u"integers"_s, QVariantList{62LL, -1LL, 0LL, ~0ULL}},
        {u"real"_s, 0.1},
        {u"truth"_s, QVariantList{true, false}},
        {u"date"_s, utc("2024-02-29T23:59:58Z")},
        {u"[data]"_s, QByteArray("\0\1\xff", 3)},
        {u""_s, QVariantList{u""_s, QByteArray(""), QVariantList()}},
        {u"map"_s, QVariantMap{{u"a"_s, QVariantMap()}}},
    };
}

QVariant nested(int depth)
{
    return depth == 0 ? QVariant(true) : QVariant(QVariantList{nested(depth - 1)});
}
} // namespace

/// Property lists, read and written, sound and otherwise.
class PropertyListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyValueSurvives_data();
    void everyValueSurvives();
    void noNumberSurvives();
    void writesOtherTypesAsThoseThatItReads_data();
    void writesOtherTypesAsThoseThatItReads();
    void writesADocument();
    void readsWhatOthersWrite_data();
    void readsWhatOthersWrite();
    void realsAreTheSameInEveryLocale();
    void tellsWhatCannotBeWritten_data();
    void tellsWhatCannotBeWritten();
    void tellsWhatIsMalformed_data();
    void tellsWhatIsMalformed();
    void refusesDataCutOffAnywhere();
    void survivesAnyDamagedByte();
};

void PropertyListTest::everyValueSurvives_data()
{
    const TestTable<QVariant> table("value");
    const std::pair<const char *, QVariant> rows[] = {
        {"every type", everyType()},
        {"text", u" Größe\r\n\r \n\t\"]]><![CDATA[ &lt; <!-- ]]> \U0001F600 "_s},
        {"white space", u" \n"_s},
        {"smallest", std::numeric_limits<qlonglong>::min()},
        {"largest with a sign", std::numeric_limits<qlonglong>::max()},
        {"next without a sign", qulonglong(1) << 63},
        {"largest", std::numeric_limits<qulonglong>::max()},
        {"real", 1.0 / 3},
        {"whole real", 12.0},
        {"large real", -1.7976931348623157e308},
        {"small real", 5e-324},
        {"infinite real", std::numeric_limits<double>::infinity()},
        {"negative infinite real", -std::numeric_limits<double>::infinity()},
        {"date with a fraction", utc("1969-12-31T23:59:59.123Z")},
        {"first date", utc("0001-01-01T00:00:00Z")},
        {"last date", utc("9999-12-31T23:59:59.999Z")},
        {"deepest", nested(PropertyList::kGreatestDepth)},
    };
    for (const auto &[name, value] : rows) {
        table.add(name, value);
    }
}

void PropertyListTest::everyValueSurvives()
{
    QFETCH(QVariant, value);
    QString error;
    const QByteArray data = PropertyList::write(value, &error);
    QVERIFY2(!data.isEmpty(), qPrintable(error));
    const QVariant read = PropertyList::read(data, &error);
    QVERIFY2(read.isValid(), qPrintable(error));
    QCOMPARE(read.userType(), value.userType());
    QCOMPARE(read, value);
    QCOMPARE(error, QString());
}

void PropertyListTest::noNumberSurvives()
{
    const QVariant read = PropertyList::read(PropertyList::write(std::nan("")));
    QCOMPARE(read.userType(), int(QMetaType::Double));
    QVERIFY(std::isnan(read.toDouble()));
}

void PropertyListTest::writesOtherTypesAsThoseThatItReads_data()
{
    const TestTable<QVariant, QVariant> table("written", "read");
    const auto integer = [&table](const char *name, auto value) {
        table.add(name, QVariant::fromValue(value), QVariant(qlonglong(value)));
    };
    integer("qint8", qint8(-8));
    integer("quint8", quint8(250));
    integer("qint16", qint16(-16));
    integer("quint16", quint16(65535));
    integer("qint32", qint32(-32));
    integer("quint32", quint32(4294967295U));
    integer("long", long(-64));
    integer("unsigned long", 64UL);
    integer("quint64", quint64(64));
    table.add("no text", QVariant(QString()), QVariant(u""_s));
    table.add("date in the east", QVariant(utc("2024-06-01T12:00:00+02:00")),
              QVariant(utc("2024-06-01T10:00:00Z")));
}

void PropertyListTest::writesOtherTypesAsThoseThatItReads()
{
    QFETCH(QVariant, written);
    QFETCH(QVariant, read);
    const QVariant again = PropertyList::read(PropertyList::write(written));
    QCOMPARE(again, read);
    QCOMPARE(again.userType(), read.userType());
    QCOMPARE(again.toString(), read.toString());
}

void PropertyListTest::writesADocument()
{
    const QVariantMap value{
        {u"Cut & feed"_s, true}, {u"Date"_s, utc("2024-02-29T23:59:58Z")}, {u"Text"_s, u"\r\n"_s}};
    QCOMPARE(PropertyList::write(value),
             QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                        "<plist version=\"1.0\">\n"
                        "    <dict>\n"
                        "        <key>Cut &amp; feed</key>\n"
                        "        <true/>\n"
                        "        <key>Date</key>\n"
                        "        <date>2024-02-29T23:59:58Z</date>\n"
                        "        <key>Text</key>\n"
                        "        <string>&#13;\n</string>\n"
                        "    </dict>\n"
                        "</plist>\n"));
}

void PropertyListTest::readsWhatOthersWrite_data()
{
    const TestTable<QByteArray, QVariant> table("data", "value");
    const auto row = [&table](const QByteArray &data, const QVariant &value) {
        table.add(rowName(data), data, value);
    };
    row("<?xml version='1.0'?><!DOCTYPE plist SYSTEM 'list.dtd'><!-- <array> --><plist><!-- a -->"
        "<dict><!-- [ --><key>a<!-- b --></key><true></true><?order 1?></dict></plist><!-- b -->",
        QVariantMap{{u"a"_s, true}});
    row("<?xml version='1.0' encoding='ISO-8859-1'?><plist><string>ß</string></plist>", u"ß"_s);
    row("\xef\xbb\xbf" + xmlString("a[b"), u"a[b"_s);
    row(xmlString("\r\n\r"), u"\n\n"_s);
    row(xmlString("&#65;&#x1F600;&lt;<![CDATA[<x>]]>"), u"A\U0001F600<<x>"_s);
    row(xmlString("a<!-- x --><?y z?>[b"), u"a[b"_s);
    row(xml("<array><string/><data/><dict/><array/></array>"),
        QVariantList{u""_s, QByteArray(""), QVariantMap(), QVariantList()});
    row(xml("<array><integer> +5 </integer><integer>010</integer><real> 2e3 </real></array>"),
        QVariantList{5LL, 10LL, 2000.0});
    const double infinity = std::numeric_limits<double>::infinity();
    row(xml("<array><real>infinity</real><real>+infinity</real><real>-inf</real></array>"),
        QVariantList{infinity, infinity, -infinity});
    row(xml("<data>\n\tAA\n\tEC\n</data>"), QByteArray("\0\1\2", 3));
    const QByteArray longest = textToSize(PropertyList::kGreatestSize);
    row(xmlString(longest), QString::fromLatin1(longest));
}

void PropertyListTest::readsWhatOthersWrite()
{
    QFETCH(QByteArray, data);
    QString error;
    const QVariant value = PropertyList::read(data, &error);
    QVERIFY2(value.isValid(), qPrintable(error));
    QTEST(value, "value");
}

void PropertyListTest::realsAreTheSameInEveryLocale()
{
    QLocale::setDefault(QLocale(QLocale::German));
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    const QByteArray data = PropertyList::write(-1234567.5);
    const QVariant read = PropertyList::read(data);
    QLocale::setDefault(QLocale::c());
    std::setlocale(LC_ALL, "C.UTF-8");
    QVERIFY2(data.contains("<real>-1234567.5</real>"), data.constData());
    QCOMPARE(read, QVariant(-1234567.5));
}

void PropertyListTest::tellsWhatCannotBeWritten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("complaint");

    int number = 0;
    const auto row = [&number](const QVariant &value, const QByteArray &complaint) {
        QTest::addRow("%d: %s", ++number, rowName(complaint).constData())
            << value << QString::fromLatin1(complaint);
    };
    const auto noValue = [&row](const QVariant &value, const char *kind) {
        row(value, QByteArray("a property list cannot hold this ") + kind);
    };
    noValue(QRect(1, 2, 3, 4), "QRect");
    noValue(QStringList{QString()}, "QStringList");
    noValue(QVariantHash(), "QVariantHash");
    noValue(QVariant::fromValue(nullptr), "std::nullptr_t");
    noValue(QChar(u'a'), "QChar");
    noValue(1.5F, "float");
    noValue(QDate(2024, 1, 1), "QDate");
    noValue(QVariant(), "invalid value");
    noValue(QDateTime(), "QDateTime");
    noValue(utc("9999-12-31T23:59:59Z").addSecs(1), "QDateTime");
    noValue(utc("0001-01-01T00:00:00Z").addSecs(-1), "QDateTime");

    const QString key = u"50 %1"_s;
    const QVariantMap bell{{u"a\u0007"_s, true}};
    const QVariantMap settings{{key, QVariantList{1, QRect()}}, {u"a"_s, 1.5F}};
    const int depth = PropertyList::kGreatestDepth + 1;
    row(QString(QChar(0xd83d)), "the text is no Unicode");
    row(QString(QChar(u'\0')), "XML has no character U+0000");
    row(QString(QChar(0xfffe)), "XML has no character U+fffe");
    row(bell, "a\a: XML has no character U+0007");
    row(QVariantMap{{u"Settings"_s, settings}},
        "Settings/50 %1[1]: a property list cannot hold this QRect");
    row(QVariantList{0, QVariantList{QVariantMap{{key, QVariant()}}}},
        "[1][0]/50 %1: a property list cannot hold this invalid value");
    row(nested(depth), QByteArray("[0]").repeated(depth) + ": the values are nested too deeply");
}

void PropertyListTest::tellsWhatCannotBeWritten()
{
    QFETCH(QVariant, value);
    QString error;
    QCOMPARE(PropertyList::write(value, &error), QByteArray());
    QTEST(error, "complaint");
    QCOMPARE(PropertyList::write(value), QByteArray());
}

void PropertyListTest::tellsWhatIsMalformed_data()
{
    const TestTable<QByteArray, QString> table("data", "complaint");

    // The rest of a complaint that ends with a colon is Qt's.
    const auto row = [&table](const QByteArray &data, const QByteArray &complaint) {
        table.add(rowName(data), data, QString::fromUtf8(complaint));
    };
    const auto content = [&row](const QByteArray &text, const QByteArray &complaint) {
        row(xml(text), complaint);
    };
    const auto noScalar = [&row](const QByteArray &element, const QByteArrayList &texts) {
        for (const QByteArray &text : texts) {
            row(xml("<array>\n<" + element + ">" + text + "</" + element + "></array>"),
                "line 4: \"" + text + "\" is no \"" + element + "\"");
        }
    };

    row("", "line 1:");
    row("FirstPage=1", "line 1:");
    row("{\"Pages\": [1]}", "line 1: Start tag expected.");
    row(QByteArray(1000, '\0'), "line 1:");
    row(QByteArray("bplist00\xd1\1\2Qa\x09", 14), "the data is not in UTF-8");
    row(xmlString("\xff"), "the data is not in UTF-8");
    row("<plist><true/></plist>\xe3\x81", "the data is not in UTF-8");
    row("<html/>", "line 1: the data is no property list");
    row("<dict/>", "line 1: the data is no property list");
    row("<plist>\n<array><true/>", "line 2:");
    row(xml("<true/>") + "<plist/>", "line 5:");
    content("", "line 4: the property list is empty");
    content("<true/>\n<true/>", "line 4: there is a second value at the top level");

    content("<set/>", "line 3: a property list holds no \"set\"");
    content("<array>\n<set><true/></set></array>", "line 4: a property list holds no \"set\"");
    content("<x:true xmlns:x=\"y\"/>", "line 3: a property list holds no \"x:true\"");
    content("<key>a</key>", "line 3: a property list holds no \"key\"");
    content("<array>\n</dict>", "line 4:");
    content("<array>a<true/></array>", "line 3: there is text between the values");
    content("<dict>\n<![CDATA[<]]></dict>", "line 4: there is text between the values");
    content("<dict>\n<true/></dict>", "line 4: a value has no key");
    content("<dict><key>a</key>\n</dict>", "line 4: the key \"a\" has no value");
    content("<dict><key>a</key><key/></dict>", "line 3: a property list holds no \"key\"");
    content("<dict><key>a</key><true/>\n<key>a</key></dict>",
            "line 4: the key \"a\" is there twice");
    content("<dict><key><b>a</b></key></dict>", "line 3: a text holds \"b\"");
    row(xmlString("\n<true/>"), "line 4: a text holds \"true\"");
    row(xmlString("&#xD83D;"), "line 3:");
    row(xmlString(QByteArray(1, '\0')), "line 3:");

    noScalar("integer", {"", "many", "1.5", "1e3", "0x10", "1 2", "1,000", "--1",
                         "18446744073709551616", "-9223372036854775809"});
    noScalar("real", {"", "much", "1,5", "1e400", "0x1p3", "infinite", "infinityinity"});
    noScalar("date", {"", "today", "2023-02-29T00:00:00Z", "2024-02-29Z", "2024-02-29T12:00Z",
                      "2024-02-29T12:00:00", "2024-02-29T12:00:00+01:00", "2024-02-29T12:00:00 Z",
                      "2024-02-29T12:00:00.Z", "2024-02-29T12:00:00.9999Z", "2024-02-29T24:00:00Z",
                      "0000-01-01T00:00:00Z", "-0001-01-01T00:00:00Z", "10000-01-01T00:00:00Z"});
    noScalar("data", {"A*==", "AAE", "A===", "=AAA", "AA=A", "AAAAA", "ÄÄÄÄ"});
    noScalar("true", {"1"});
    noScalar("false", {" "});
    content("<integer>" + QByteArray(50, '1') + "</integer>",
            "line 3: \"" + QByteArray(40, '1') + "\" is no \"integer\"");

    const QByteArray tooDeep = "line 3: the values are nested too deeply";
    const QByteArray tooLong = "the data is longer than 32768 bytes";
    const int depth = PropertyList::kGreatestDepth + 1;
    content(QByteArray("<array>").repeated(depth) + "<set/>", tooDeep);
    content(QByteArray("<dict><key>a</key>").repeated(1000), tooDeep);
    content(QByteArray("<array>").repeated(150'000), tooLong);
    content("<integer>" + QByteArray(1 << 20, '9') + "</integer>", tooLong);
    row(xmlString(textToSize(PropertyList::kGreatestSize + 1)), tooLong);

    const QByteArray declarations = "line 1: there is a \"[\" in front of the first element";
    const QByteArray otherFile = "<!DOCTYPE plist SYSTEM \"list.dtd\">\n<plist>";
    row("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;</string></plist>", declarations);
    row(entityBomb(), declarations);
    row(xmlString("&page;"), "line 3:");
    row(otherFile + "<string>a&page;b</string></plist>", "line 2: a text holds \"page\"");
    row(otherFile + "<array>&page;</array></plist>", "line 2: there is text between the values");
}

void PropertyListTest::tellsWhatIsMalformed()
{
    QFETCH(QByteArray, data);
    QFETCH(QString, complaint);
    QString error;
    QVERIFY(!PropertyList::read(data, &error).isValid());
    if (complaint.endsWith(u':')) {
        QVERIFY2(error.startsWith(complaint + u' ') && error.size() > complaint.size() + 1,
                 qPrintable(error));
    } else {
        QCOMPARE(error, complaint);
    }
    QVERIFY(!PropertyList::read(data).isValid());
}

void PropertyListTest::refusesDataCutOffAnywhere()
{
    const QByteArray data = PropertyList::write(everyType()).trimmed();
    QCOMPARE(PropertyList::read(data), QVariant(everyType()));
    for (int length = 0; length < data.size(); ++length) {
        QString error;
        QVERIFY2(!PropertyList::read(data.left(length), &error).isValid(),
                 qPrintable(QString::number(length)));
        QVERIFY(!error.isEmpty());
    }
}

void PropertyListTest::survivesAnyDamagedByte()
{
    const QByteArray sound = PropertyList::write(everyType());
    for (int at = 0; at < sound.size(); ++at) {
        for (const char damage : {'\0', '\x7f', '\xa1', '<', '&', '>', '[', '/', '0'}) {
            QByteArray data = sound;
            data[at] = damage;
            QString error;
            const QVariant value = PropertyList::read(data, &error);
            QCOMPARE(value.isValid(), error.isEmpty());
            if (value.isValid()) {
                QCOMPARE(PropertyList::read(PropertyList::write(value)), value);
            }
        }
    }
}

KV_CORE_TEST(PropertyListTest)
#include "tst_propertylist.moc"
