#include "printcore/PropertyList.h"

#include <QDateTime>
#include <QRect>
#include <QTest>
#include <QTimeZone>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <iterator>
#include <limits>

using Format = PropertyList::Format;
Q_DECLARE_METATYPE(Format)

namespace {
QByteArray xml(const QByteArray &content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n" + content +
           "\n</plist>\n";
}

QByteArray bigEndian(quint64 number, int size)
{
    QByteArray bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(static_cast<char>(number >> shift));
    return bytes;
}

/// A binary property list of these objects, the first of which is the top level.
QByteArray binary(const QByteArrayList &objects)
{
    QByteArray data("bplist00");
    QByteArray offsets;
    for (const QByteArray &object : objects) {
        offsets.append(bigEndian(static_cast<quint64>(data.size()), 4));
        data.append(object);
    }
    const auto table = static_cast<quint64>(data.size());
    data.append(offsets + QByteArray(6, '\0') + '\4' + '\2');
    data.append(bigEndian(static_cast<quint64>(objects.size()), 8) + bigEndian(0, 8));
    return data + bigEndian(table, 8);
}

/// The bytes of an array with references to these objects.
QByteArray arrayOf(const QList<quint64> &references)
{
    QByteArray object = '\xaf' + QByteArray("\x11") + bigEndian(quint64(references.size()), 2);
    for (const quint64 reference : references)
        object.append(bigEndian(reference, 2));
    return object;
}

QDateTime utc(int year, int month, int day, const QTime &time)
{
    return QDateTime(QDate(year, month, day), time, QTimeZone::utc());
}

QVariantMap everyType()
{
    return {
        {u"text"_s, u"Größe <12> & \U0001F600"_s},
        {u"number"_s, qlonglong(62)},
        {u"large"_s, std::numeric_limits<qulonglong>::max()},
        {u"real"_s, 0.1},
        {u"on"_s, true},
        {u"off"_s, false},
        {u"date"_s, utc(2024, 2, 29, QTime(23, 59, 58))},
        {u"data"_s, QByteArray("\0\1\xff", 3)},
        {u"list"_s, QVariantList{u"a"_s, qlonglong(-1), QVariantList(), QVariantMap()}},
        {u"map"_s, QVariantMap{{u""_s, u""_s}, {u"a/<b>"_s, QByteArray()}}},
    };
}

QVariant nested(int depth)
{
    QVariant value = u"deep"_s;
    for (int i = 0; i < depth; ++i)
        value = QVariantList{value};
    return value;
}
} // namespace

/// Property lists, read and written, sound and otherwise.
class PropertyListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { std::setlocale(LC_ALL, "C.UTF-8"); }

    void everyValueSurvives_data();
    void everyValueSurvives();
    void everyIntegerTypeIsWritten_data();
    void everyIntegerTypeIsWritten();
    void realsThatAreNoNumbersSurvive();
    void binaryDatesKeepMilliseconds();
    void datesAreReadInUTC();
    void megabyteOfTextSurvives_data();
    void megabyteOfTextSurvives();
    void readsWhatOthersWrite_data();
    void readsWhatOthersWrite();
    void readsRealsInAnyLocale();

    void refusesToWriteOtherTypes_data();
    void refusesToWriteOtherTypes();
    void tellsWhereTheUnwritableValueIs();
    void refusesCharactersThatXMLLacks();
    void refusesToWriteDeepNesting();

    void refusesMalformedXML_data();
    void refusesMalformedXML();
    void refusesMalformedBinary_data();
    void refusesMalformedBinary();
    void refusesDataCutOffAnywhere_data();
    void refusesDataCutOffAnywhere();
    void survivesAnyDamagedByte_data();
    void survivesAnyDamagedByte();
    void refusesDeepNesting_data();
    void refusesDeepNesting();
    void refusesReferencesThatUnfoldWithoutEnd();
    void readsValuesThatAreReferredToMoreThanOnce();
};

void PropertyListTest::everyValueSurvives_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<Format>("format");

    const std::pair<const char *, QVariant> values[] = {
        {"text", u"Größe <12> & \"tape\"\n\t \U0001F600 "_s},
        {"lines", u"\r\n\r \n"_s},
        {"XML's own text", u"]]><![CDATA[ &lt; <!-- ]]>"_s},
        {"empty text", u""_s},
        {"zero", qlonglong(0)},
        {"minus one", qlonglong(-1)},
        {"byte", qlonglong(200)},
        {"negative byte", qlonglong(-200)},
        {"16 bits", qlonglong(-40'000)},
        {"32 bits", qlonglong(-3'000'000'000)},
        {"smallest", std::numeric_limits<qlonglong>::min()},
        {"largest with a sign", std::numeric_limits<qlonglong>::max()},
        {"next without a sign", qulonglong(1) << 63},
        {"largest", std::numeric_limits<qulonglong>::max()},
        {"real", 1.0 / 3},
        {"whole real", 12.0},
        {"large real", -1.7976931348623157e308},
        {"small real", 5e-324},
        {"infinite real", -std::numeric_limits<double>::infinity()},
        {"true", true},
        {"false", false},
        {"date", utc(2024, 2, 29, QTime(23, 59, 58))},
        {"date before 2001", utc(1969, 12, 31, QTime(23, 59, 59))},
        {"date long before", utc(1000, 1, 1, QTime(0, 0))},
        {"date long after", utc(9999, 12, 31, QTime(23, 59, 59))},
        {"data", QByteArray("\0\1\xff", 3)},
        {"empty data", QByteArray("")},
        {"array", QVariantList{u"a"_s, true, QVariantList{1.5}}},
        {"empty array", QVariantList()},
        {"dictionary", everyType()},
        {"empty dictionary", QVariantMap()},
        {"deep", nested(256)},
    };
    for (const auto &[name, value] : values) {
        QTest::addRow("%s in XML", name) << value << Format::XML;
        QTest::addRow("%s in binary", name) << value << Format::Binary;
    }
}

void PropertyListTest::everyValueSurvives()
{
    QFETCH(QVariant, value);
    QFETCH(Format, format);
    QString error;
    const QByteArray data = PropertyList::write(value, format, &error);
    QVERIFY2(!data.isEmpty(), qPrintable(error));
    QCOMPARE(data.startsWith("bplist00"), format == Format::Binary);

    const QVariant read = PropertyList::read(data, &error);
    QVERIFY2(read.isValid(), qPrintable(error));
    QCOMPARE(read.userType(), value.userType());
    QCOMPARE(read, value);
    QCOMPARE(error, QString());
}

void PropertyListTest::everyIntegerTypeIsWritten_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<qlonglong>("expected");

    QTest::newRow("qint8") << QVariant::fromValue<qint8>(-8) << -8LL;
    QTest::newRow("quint8") << QVariant::fromValue<quint8>(250) << 250LL;
    QTest::newRow("qint16") << QVariant::fromValue<qint16>(-16) << -16LL;
    QTest::newRow("quint16") << QVariant::fromValue<quint16>(65535) << 65535LL;
    QTest::newRow("qint32") << QVariant::fromValue<qint32>(-32) << -32LL;
    QTest::newRow("quint32") << QVariant::fromValue<quint32>(4294967295U) << 4294967295LL;
    QTest::newRow("long") << QVariant::fromValue<long>(-64) << -64LL;
    QTest::newRow("unsigned long") << QVariant::fromValue<unsigned long>(64) << 64LL;
    QTest::newRow("qint64") << QVariant::fromValue<qint64>(-64) << -64LL;
    QTest::newRow("quint64") << QVariant::fromValue<quint64>(64) << 64LL;
}

void PropertyListTest::everyIntegerTypeIsWritten()
{
    QFETCH(QVariant, value);
    QFETCH(qlonglong, expected);
    for (const Format format : {Format::XML, Format::Binary}) {
        const QVariant read = PropertyList::read(PropertyList::write(value, format));
        QCOMPARE(read, QVariant(expected));
        QCOMPARE(read.userType(), int(QMetaType::LongLong));
    }
}

void PropertyListTest::realsThatAreNoNumbersSurvive()
{
    for (const Format format : {Format::XML, Format::Binary}) {
        const QVariant read = PropertyList::read(PropertyList::write(std::nan(""), format));
        QCOMPARE(read.userType(), int(QMetaType::Double));
        QVERIFY(std::isnan(read.toDouble()));
    }
}

void PropertyListTest::binaryDatesKeepMilliseconds()
{
    for (const int year : {1950, 2000, 2001, 2050, 3000}) {
        const QDateTime date = utc(year, 12, 31, QTime(23, 59, 59, 123));
        QCOMPARE(PropertyList::read(PropertyList::write(date, Format::Binary)), QVariant(date));
    }
}

void PropertyListTest::datesAreReadInUTC()
{
    const QDateTime east(QDate(2024, 6, 1), QTime(12, 0), QTimeZone(2 * 60 * 60));
    for (const Format format : {Format::XML, Format::Binary}) {
        const QDateTime date = PropertyList::read(PropertyList::write(east, format)).toDateTime();
        QCOMPARE(date.timeSpec(), Qt::UTC);
        QCOMPARE(date.toString(Qt::ISODate), u"2024-06-01T10:00:00Z"_s);
    }
}

void PropertyListTest::megabyteOfTextSurvives_data()
{
    QTest::addColumn<QChar>("character");

    QTest::newRow("ASCII") << QChar(u'x');
    QTest::newRow("escaped in XML") << QChar(u'<');
    QTest::newRow("mark of a quotation's end") << QChar(u']');
    QTest::newRow("beyond ASCII") << QChar(u'あ');
}

void PropertyListTest::megabyteOfTextSurvives()
{
    QFETCH(QChar, character);
    const QVariantMap value{{u"text"_s, QString(1 << 20, character)}};
    for (const Format format : {Format::XML, Format::Binary})
        QCOMPARE(PropertyList::read(PropertyList::write(value, format)), QVariant(value));
}

void PropertyListTest::readsWhatOthersWrite_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QVariant>("value");

    QTest::newRow("document type and comments")
        << QByteArray("<?xml version='1.0'?><!DOCTYPE plist SYSTEM \"list.dtd\"><!-- <array> -->"
                      "<plist><!-- a --><dict><!-- b --><key>a</key><true></true></dict></plist>")
        << QVariant(QVariantMap{{u"a"_s, true}});
    QTest::newRow("references and CDATA")
        << xml("<string>&#65;&#x1F600;&lt;<![CDATA[<x>]]></string>")
        << QVariant(u"A\U0001F600<<x>"_s);
    QTest::newRow("empty elements")
        << xml("<array><string/><data/><dict/></array>")
        << QVariant(QVariantList{QString(u""_s), QByteArray(""), QVariantMap()});
    QTest::newRow("white space around numbers")
        << xml("<array><integer> +5 </integer><real> 2e3 </real></array>")
        << QVariant(QVariantList{5LL, 2000.0});
    QTest::newRow("data in lines")
        << xml("<data>\n\tAA\n\tEC\n</data>") << QVariant(QByteArray("\0\1\2", 3));
    QTest::newRow("key given twice") << xml("<dict><key>a</key><true/><key>a</key><false/></dict>")
                                     << QVariant(QVariantMap{{u"a"_s, false}});
    QTest::newRow("single precision")
        << binary({QByteArray("\x22\x3f\xc0\0\0", 5)}) << QVariant(1.5);
    QTest::newRow("UTF-16") << binary({QByteArray("\x62\x30\x42\0A", 5)}) << QVariant(u"あA"_s);
    QTest::newRow("16 bytes of integer")
        << binary({'\x14' + bigEndian(0, 8) + bigEndian(7, 8)}) << QVariant(7LL);
}

void PropertyListTest::readsWhatOthersWrite()
{
    QFETCH(QByteArray, data);
    QString error;
    const QVariant value = PropertyList::read(data, &error);
    QVERIFY2(value.isValid(), qPrintable(error));
    QTEST(value, "value");
}

void PropertyListTest::readsRealsInAnyLocale()
{
    for (const char *const locale : {"de_DE.UTF-8", "fr_FR.UTF-8", "ru_RU.UTF-8"}) {
        if (!std::setlocale(LC_NUMERIC, locale))
            continue;
        QCOMPARE(std::localeconv()->decimal_point, ",");
        QCOMPARE(PropertyList::read(xml("<real>3.5</real>")), QVariant(3.5));
        QVERIFY(PropertyList::write(3.5, Format::XML).contains("<real>3.5</real>"));
        QCOMPARE(std::localeconv()->decimal_point, ",");
        return;
    }
    QSKIP("no locale with a decimal comma is installed");
}

void PropertyListTest::refusesToWriteOtherTypes_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const QVariant &value, const char *name) {
        QTest::newRow(name) << value << u"a property list holds no "_s + QLatin1StringView(name);
    };
    row(QRect(1, 2, 3, 4), "QRect");
    row(QStringList{u"a"_s}, "QStringList");
    row(QVariantHash(), "QVariantHash");
    row(QVariant::fromValue(nullptr), "std::nullptr_t");
    row(QChar(u'a'), "QChar");
    row(1.5F, "float");
    row(QDate(2024, 1, 1), "QDate");
    row(QVariant(), "invalid value");
    row(QDateTime(), "such date");
    QTest::newRow("year 999") << QVariant(utc(999, 1, 1, QTime(0, 0)))
                              << u"a property list holds no such date"_s;
    QTest::newRow("year 10000") << QVariant(utc(10000, 1, 1, QTime(0, 0)))
                                << u"a property list holds no such date"_s;
    QTest::newRow("half a character")
        << QVariant(QString(QChar(0xd83d))) << u"the text is no Unicode"_s;
    QTest::newRow("null character")
        << QVariant(QString(QChar(u'\0'))) << u"the format holds no character U+0000"_s;
}

void PropertyListTest::refusesToWriteOtherTypes()
{
    QFETCH(QVariant, value);
    for (const Format format : {Format::XML, Format::Binary}) {
        QString error;
        QCOMPARE(PropertyList::write(value, format, &error), QByteArray());
        QTEST(error, "complaint");
        QCOMPARE(PropertyList::write(QVariantList{value}, format, &error), QByteArray());
        QVERIFY2(error.startsWith(u"[0]: "_s), qPrintable(error));
        QCOMPARE(PropertyList::write(value, format), QByteArray());
    }
}

void PropertyListTest::tellsWhereTheUnwritableValueIs()
{
    const QVariantList pages{1, 2, QRect()};
    const QVariantMap settings{{u"Fine"_s, 1}, {u"Pages"_s, pages}};
    QString error;
    QCOMPARE(PropertyList::write(QVariantMap{{u"Settings"_s, settings}}, Format::XML, &error),
             QByteArray());
    QCOMPARE(error, u"Settings/Pages[2]: a property list holds no QRect"_s);

    const QVariantMap inList{{u"Deep"_s, QVariant()}};
    QCOMPARE(PropertyList::write(QVariantList{QVariantList{true, inList}}, Format::Binary, &error),
             QByteArray());
    QCOMPARE(error, u"[0][1]/Deep: a property list holds no invalid value"_s);
}

void PropertyListTest::refusesCharactersThatXMLLacks()
{
    const QString bell = u"a\u0007"_s;
    QString error;
    QCOMPARE(PropertyList::write(QVariantMap{{u"k"_s, bell}}, Format::XML, &error), QByteArray());
    QCOMPARE(error, u"k: the format holds no character U+0007"_s);
    QCOMPARE(PropertyList::write(QVariantMap{{bell, true}}, Format::XML), QByteArray());
    QCOMPARE(PropertyList::read(PropertyList::write(bell, Format::Binary)), QVariant(bell));
}

void PropertyListTest::refusesToWriteDeepNesting()
{
    QString error;
    QCOMPARE(PropertyList::write(nested(257), Format::XML, &error), QByteArray());
    QVERIFY2(error.endsWith(u"[0]: the values are nested too deeply"_s), qPrintable(error));
}

void PropertyListTest::refusesMalformedXML_data()
{
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<QString>("complaint");

    QTest::newRow("empty") << QByteArray() << u"the data is empty"_s;
    QTest::newRow("text") << QByteArray("FirstPage=1") << u"line 1: "_s;
    QTest::newRow("JSON") << QByteArray("{\"FirstPage\": 1}") << u"line 1: "_s;
    QTest::newRow("zeros") << QByteArray(1000, '\0') << u"line 1: "_s;
    QTest::newRow("other XML") << QByteArray("<html/>")
                               << u"line 1: the data is no property list"_s;
    QTest::newRow("without a list")
        << QByteArray("<dict/>") << u"line 1: the data is no property list"_s;
    QTest::newRow("no value") << xml("") << u"line 4: the property list is empty"_s;
    QTest::newRow("two values") << xml("<true/><true/>")
                                << u"line 3: there is a second value at the top level"_s;
    QTest::newRow("not UTF-8") << xml("<string>\xff</string>") << u"the data is not in UTF-8"_s;
    QTest::newRow("unknown element") << xml("<set/>") << u"line 3: a property list holds no"_s;
    QTest::newRow("key as a value")
        << xml("<key>a</key>") << u"line 3: a property list holds no \"key\""_s;
    QTest::newRow("word for a number")
        << xml("<integer>many</integer>") << u"line 3: \"many\" is no \"integer\""_s;
    QTest::newRow("no number") << xml("<integer/>") << u"line 3: \"\" is no \"integer\""_s;
    QTest::newRow("number beyond 64 bits") << xml("<integer>18446744073709551616</integer>")
                                           << u"line 3: \"18446744073709551616\" is no"_s;
    QTest::newRow("small number beyond 64 bits") << xml("<integer>-9223372036854775809</integer>")
                                                 << u"line 3: \"-9223372036854775809\" is no"_s;
    QTest::newRow("octal number") << xml("<integer>010</integer>")
                                  << u"line 3: \"010\" is no \"integer\""_s;
    QTest::newRow("word for a real")
        << xml("<real>much</real>") << u"line 3: \"much\" is no \"real\""_s;
    QTest::newRow("word for a date")
        << xml("<date>today</date>") << u"line 3: \"today\" is no \"date\""_s;
    QTest::newRow("no such day") << xml("<date>2023-02-29T00:00:00Z</date>")
                                 << u"line 3: \"2023-02-29T00:00:00Z\" is no \"date\""_s;
    QTest::newRow("no base 64") << xml("<data>A*==</data>") << u"line 3: \"A*==\" is no \"data\""_s;
    QTest::newRow("half of base 64")
        << xml("<data>AAE</data>") << u"line 3: \"AAE\" is no \"data\""_s;
    QTest::newRow("truth with content")
        << xml("<true>1</true>") << u"line 3: \"1\" is no \"true\""_s;
    QTest::newRow("element in a text") << xml("<string><true/></string>") << u"line 3: "_s;
    QTest::newRow("value without a key")
        << xml("<dict><true/></dict>") << u"line 3: a value has no key"_s;
    QTest::newRow("key without a value")
        << xml("<dict><key>a</key></dict>") << u"line 3: the key \"a\" has no value"_s;
    QTest::newRow("text in an array")
        << xml("<array>a<true/></array>") << u"line 3: there is text between the values"_s;
    QTest::newRow("CDATA in an array") << xml("<array><![CDATA[<array>]]></array>")
                                       << u"line 3: there is text between the values"_s;
    QTest::newRow("unknown entity") << xml("<string>&page;</string>") << u"line 3: "_s;
    QTest::newRow("half a character") << xml("<string>&#xD83D;</string>") << u"line 3: "_s;
    QTest::newRow("document type of its own")
        << QByteArray("<!DOCTYPE plist [<!ENTITY a \"aa\">]><plist><string>&a;</string></plist>")
        << u"line 1: the data declares a document type of its own"_s;
    QTest::newRow("more after the end") << xml("<true/>") + "<plist/>" << u"line 5: "_s;
}

void PropertyListTest::refusesMalformedXML()
{
    QFETCH(QByteArray, data);
    QFETCH(QString, complaint);
    QString error;
    QVERIFY(!PropertyList::read(data, &error).isValid());
    QVERIFY2(error.startsWith(complaint), qPrintable(error));
    QVERIFY(!PropertyList::read(data).isValid());
}

void PropertyListTest::refusesMalformedBinary_data()
{
    QTest::addColumn<QByteArrayList>("objects");
    QTest::addColumn<QString>("complaint");

    const auto row = [](const char *name, const QByteArrayList &objects, const QString &complaint) {
        QTest::newRow(name) << objects << complaint;
    };
    const QString unknown = u"object 0 is of no known type"_s;
    row("no objects", {}, u"object 0 is not there"_s);
    row("null", {QByteArray("\0", 1)}, unknown);
    row("fill", {"\x0f"}, unknown);
    row("identifier", {QByteArray("\x80\7", 2)}, unknown);
    row("set", {"\xc0"}, unknown);
    row("integer of 32 bytes", {'\x15' + QByteArray(32, '\0')}, unknown);
    row("integer beyond 64 bits", {'\x14' + QByteArray(16, '\xff')}, unknown);
    row("real of 2 bytes", {QByteArray("\x21\0\0", 3)}, unknown);
    row("date that is no number", {"\x33" + bigEndian(0x7ff8000000000000, 8)}, unknown);
    row("date far away", {"\x33" + bigEndian(0x7fe0000000000000, 8)}, unknown);
    row("date of 4 bytes", {QByteArray("\x32\0\0\0\0", 5)}, unknown);
    row("text that is not UTF-8", {"\x52\xff\xfe"}, unknown);
    row("text with a null character",
        {QByteArray("\x52"
                    "A\0",
                    3)},
        unknown);
    row("half a pair", {"\x61\xd8\x3d"}, unknown);
    row("UTF-16 with a null character", {QByteArray("\x62\0\0\0A", 5)}, unknown);
    row("text cut off",
        {"\x5a"
         "short"},
        u"object 0 is cut off"_s);
    row("UTF-16 cut off",
        {"\x63"
         "short"},
        u"object 0 is cut off"_s);
    row("endless data", {"\x4f\x13" + QByteArray(8, '\xff')}, u"object 0 is cut off"_s);
    row("half of endless text", {"\x6f\x13\x80" + QByteArray(7, '\0')}, u"object 0 is cut off"_s);
    row("endless array", {"\xaf\x13" + QByteArray(8, '\xff')}, u"object 0 is cut off"_s);
    row("count of no integer", {QByteArray("\x5f\x22\0\0\0\0", 6)}, u"object 0 is not there"_s);
    row("count of 16 bytes", {"\x5f\x14" + QByteArray(16, '\0')}, u"object 0 is not there"_s);
    row("count that is not there", {"\x5f"}, u"object 0 is not there"_s);
    row("element that is not there", {arrayOf({1})}, u"object 1 is not there"_s);
    row("itself", {arrayOf({0})}, u"object 0 holds itself"_s);
    row("itself further down", {arrayOf({1}), arrayOf({0})}, u"object 0 holds itself"_s);
    row("key that is no text", {QByteArray("\xd1\0\1\0\1", 5), "\x09"},
        u"object 0 has a key that is no string"_s);
}

void PropertyListTest::refusesMalformedBinary()
{
    QFETCH(QByteArrayList, objects);
    QString error;
    QVERIFY(!PropertyList::read(binary(objects), &error).isValid());
    QTEST(error, "complaint");
}

void PropertyListTest::refusesDataCutOffAnywhere_data()
{
    QTest::addColumn<Format>("format");

    QTest::newRow("XML") << Format::XML;
    QTest::newRow("binary") << Format::Binary;
}

void PropertyListTest::refusesDataCutOffAnywhere()
{
    QFETCH(Format, format);
    const QByteArray data = PropertyList::write(everyType(), format).trimmed();
    QVERIFY(PropertyList::read(data).isValid());
    for (int length = 0; length < data.size(); ++length) {
        QString error;
        QVERIFY2(!PropertyList::read(data.left(length), &error).isValid(),
                 qPrintable(QString::number(length)));
        QVERIFY(!error.isEmpty());
    }
}

void PropertyListTest::survivesAnyDamagedByte_data()
{
    refusesDataCutOffAnywhere_data();
}

void PropertyListTest::survivesAnyDamagedByte()
{
    QFETCH(Format, format);
    const QByteArray sound = PropertyList::write(everyType(), format);
    for (int at = 0; at < sound.size(); ++at) {
        for (const char damage : {'\x00', '\x01', '\x0f', '\x7f', '\xa1', '\xd1', '\xff', '<'}) {
            QByteArray data = sound;
            data[at] = damage;
            QString error;
            const QVariant value = PropertyList::read(data, &error);
            QCOMPARE(value.isValid(), error.isEmpty());
            if (value.isValid())
                QCOMPARE(PropertyList::read(PropertyList::write(value, Format::Binary)), value);
        }
    }
}

void PropertyListTest::refusesDeepNesting_data()
{
    QTest::addColumn<QByteArray>("data");

    const int depth = 60'000;
    QByteArrayList objects;
    for (quint64 i = 1; i <= depth; ++i)
        objects.append(arrayOf({i}));
    objects.append("\x09");
    QTest::newRow("binary") << binary(objects);
    QTest::newRow("arrays in XML")
        << xml(QByteArray("<array>").repeated(depth) + QByteArray("</array>").repeated(depth));
    QTest::newRow("dictionaries in XML") << xml(QByteArray("<dict><key>a</key>").repeated(depth) +
                                                "<true/>" + QByteArray("</dict>").repeated(depth));
    QTest::newRow("one too many") << xml(QByteArray("<array>").repeated(257) + "<true/>" +
                                         QByteArray("</array>").repeated(257));
}

void PropertyListTest::refusesDeepNesting()
{
    QFETCH(QByteArray, data);
    QString error;
    QVERIFY(!PropertyList::read(data, &error).isValid());
    QVERIFY2(error.endsWith(u"the values are nested too deeply"_s), qPrintable(error));
}

void PropertyListTest::refusesReferencesThatUnfoldWithoutEnd()
{
    QByteArrayList objects;
    for (quint64 i = 1; i <= 100; ++i)
        objects.append(arrayOf({i, i}));
    objects.append("\x09");
    QString error;
    QVERIFY(!PropertyList::read(binary(objects), &error).isValid());
    QVERIFY2(error.endsWith(u"unfolds to too much"_s), qPrintable(error));
}

void PropertyListTest::readsValuesThatAreReferredToMoreThanOnce()
{
    const QVariantList pair{true, true};
    QCOMPARE(PropertyList::read(binary({arrayOf({1, 1}), arrayOf({2, 2}), "\x09"})),
             QVariant(QVariantList{QVariant(pair), QVariant(pair)}));

    QVariantList same;
    std::fill_n(std::back_inserter(same), 10'000, u"the same text over and over again"_s);
    QCOMPARE(PropertyList::read(PropertyList::write(same, Format::Binary)), QVariant(same));
}

KV_CORE_TEST(PropertyListTest)
#include "tst_propertylist.moc"
