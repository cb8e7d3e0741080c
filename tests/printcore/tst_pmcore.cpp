// SPDX-License-Identifier: Apache-2.0
#include "printcore/PMCore.h"

#include "printcore/PageFormat.h"
#include "printcore/Paper.h"
#include "printcore/PrintSession.h"
#include "printcore/PrintSettings.h"
#include "printcore/Printer.h"

#include <QPoint>
#include <QTest>

#include <limits>

namespace {
const QString kFirstPageKey = u"com.korvane.print.settings.FirstPage"_s;
const QString kLastPageKey = u"com.korvane.print.settings.LastPage"_s;
constexpr quint32 kAllPages = std::numeric_limits<quint32>::max();
} // namespace

/// The printing layer's functions and the objects behind their handles.
class PMCoreTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pageFormatHandsOutItsPaper();
    void paperTellsItsName();
    void paperWithoutANameDiffersFromOneWithAnEmptyName();
    void paperTellsItsHeight_data();
    void paperTellsItsHeight();

    void settingsHoldValues();
    void sessionHoldsValues();
    void settingsSurviveBeingSaved();
    void settingsWithOtherTypesAreNotSaved();
    void settingsAreNotReadFromAnythingElse_data();
    void settingsAreNotReadFromAnythingElse();

    void allPagesAreInTheRangeUntilItIsSet();
    void pageRangeIsSet();
    void pageRangeIsSetThoughItCannotBeLocked();
    void pageRangeTakesNoPageZero();
    void pageRangeSurvivesBeingSaved();
    void pageRangeReadsItsEntries_data();
    void pageRangeReadsItsEntries();

    void printerTellsItsDeviceURI();
    void schemeStandsBeforeTheColon_data();
    void schemeStandsBeforeTheColon();

    void nullHandlesAreNamed();
    void nullResultsAreRefused();
};

void PMCoreTest::pageFormatHandsOutItsPaper()
{
    PageFormat format(Paper(u"C_62"_s, 100));
    PMPaper paper = nullptr;
    QCOMPARE(PMGetPageFormatPaper(&format, &paper), noErr);
    QVERIFY(paper);
    QCOMPARE(*paper, Paper(u"C_62"_s, 100));
    QCOMPARE(paper, format.paper());

    format.setPaper(Paper(u"C_29"_s, 50));
    QCOMPARE(PMGetPageFormatPaper(&format, &paper), noErr);
    QCOMPARE(*paper, Paper(u"C_29"_s, 50));

    PageFormat empty;
    QCOMPARE(PMGetPageFormatPaper(&empty, &paper), noErr);
    QVERIFY(!paper);
}

void PMCoreTest::paperTellsItsName()
{
    QString name = u"before"_s;
    const Paper named(u"C_62"_s, 100);
    QCOMPARE(PMPaperGetPPDPaperName(&named, &name), noErr);
    QCOMPARE(name, u"C_62"_s);

    const Paper unnamed(QString(), 100);
    QCOMPARE(PMPaperGetPPDPaperName(&unnamed, &name), noErr);
    QVERIFY(name.isNull());
}

void PMCoreTest::paperWithoutANameDiffersFromOneWithAnEmptyName()
{
    QVERIFY(!(Paper(QString(), 1) == Paper(u""_s, 1)));
    QVERIFY(Paper(QString(), 1) == Paper(QString(), 1));
    QVERIFY(!(Paper(u"A"_s, 1) == Paper(u"A"_s, 2)));
    QString name;
    const Paper empty(u""_s, 1);
    QCOMPARE(PMPaperGetPPDPaperName(&empty, &name), noErr);
    QVERIFY(!name.isNull());
    QVERIFY(name.isEmpty());
}

void PMCoreTest::paperTellsItsHeight_data()
{
    const TestTable<double, bool> table("height", "isHeight");

    using Limits = std::numeric_limits<double>;
    table.add("known", 85.04, true);
    table.add("unknown", 0.0, true);
    table.add("huge", 1e300, true);
    table.add("negative", -1.0, false);
    table.add("no number", Limits::quiet_NaN(), false);
    table.add("infinite", Limits::infinity(), false);
    table.add("negative and infinite", -Limits::infinity(), false);
}

void PMCoreTest::paperTellsItsHeight()
{
    QFETCH(double, height);
    QFETCH(bool, isHeight);
    const Paper paper(u"C_62"_s, height);
    double result = -7;
    QCOMPARE(PMPaperGetHeight(&paper, &result), isHeight ? noErr : kPMInvalidPaper);
    QCOMPARE(result, isHeight ? height : -7);
}

void PMCoreTest::settingsHoldValues()
{
    PrintSettings settings({{u"a"_s, 1}, {u"none"_s, QVariant()}});
    QVariant value = u"before"_s;
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"b"_s, &value), kPMInvalidKey);
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"none"_s, &value), kPMInvalidKey);
    QCOMPARE(value, QVariant(u"before"_s));
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"a"_s, &value), noErr);
    QCOMPARE(value, QVariant(1));

    settings.setValue(u"b"_s, u"new"_s);
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"b"_s, &value), noErr);
    QCOMPARE(value, QVariant(u"new"_s));
    settings.setValue(u"b"_s, QVariant());
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"b"_s, &value), kPMInvalidKey);
    QCOMPARE(settings.values(), QVariantMap({{u"a"_s, 1}}));
}

void PMCoreTest::sessionHoldsValues()
{
    PrintSession session;
    QVariant value = u"before"_s;
    QCOMPARE(PMSessionGetDataFromSession(&session, u"a"_s, &value), kPMInvalidKey);
    QCOMPARE(value, QVariant(u"before"_s));
    session.setValue(u"a"_s, QVariantMap{{u"b"_s, true}});
    QCOMPARE(PMSessionGetDataFromSession(&session, u"a"_s, &value), noErr);
    QCOMPARE(value, QVariant(QVariantMap{{u"b"_s, true}}));
    session.setValue(u"a"_s, QVariant());
    QCOMPARE(PMSessionGetDataFromSession(&session, u"a"_s, &value), kPMInvalidKey);
}

void PMCoreTest::settingsSurviveBeingSaved()
{
    PrintSettings settings(
        {{u"Cut each"_s, 3LL}, {u"Größe"_s, 12.5}, {u"Tapes"_s, QVariantList{u"12 mm"_s, true}}});
    QByteArray data("before");
    QCOMPARE(PMPrintSettingsCreateDataRepresentation(&settings, &data, kPMDataFormatXMLDefault),
             noErr);
    QVERIFY(data.startsWith("<?xml"));

    std::unique_ptr<PrintSettings> read;
    QCOMPARE(PMPrintSettingsCreateWithDataRepresentation(data, &read), noErr);
    QVERIFY(read);
    QCOMPARE(read->values(), settings.values());
}

void PMCoreTest::settingsWithOtherTypesAreNotSaved()
{
    PrintSettings settings({{u"Margin"_s, QPoint(1, 2)}});
    QByteArray data("before");
    QCOMPARE(PMPrintSettingsCreateDataRepresentation(&settings, &data, kPMDataFormatXMLDefault),
             kPMInvalidValue);
    QCOMPARE(data, QByteArray("before"));

    QString error;
    QCOMPARE(settings.dataRepresentation(&error), QByteArray());
    QCOMPARE(error, u"Margin: a property list cannot hold this QPoint"_s);
}

void PMCoreTest::settingsAreNotReadFromAnythingElse_data()
{
    const TestTable<QByteArray, QString> table("data", "complaint");
    table.add("nothing", QByteArray(), u"line 1: Premature end of document."_s);
    table.add("no list", "<xml/>", u"line 1: the data is no property list"_s);
    table.add("an array", PropertyList::write(QVariantList{1}),
              u"the top level is no dictionary"_s);
    table.add("a text", PropertyList::write(u"a"_s), u"the top level is no dictionary"_s);
}

void PMCoreTest::settingsAreNotReadFromAnythingElse()
{
    QFETCH(QByteArray, data);
    auto settings = std::make_unique<PrintSettings>(QVariantMap{{u"kept"_s, 1}});
    QCOMPARE(PMPrintSettingsCreateWithDataRepresentation(data, &settings), kPMInvalidValue);
    QCOMPARE(settings->value(u"kept"_s), QVariant(1));

    QString error;
    QVERIFY(!PrintSettings::fromData(data, &error));
    QTEST(error, "complaint");
    QVERIFY(!PrintSettings::fromData(data, nullptr));
}

void PMCoreTest::allPagesAreInTheRangeUntilItIsSet()
{
    PrintSettings settings;
    quint32 first = 0;
    quint32 last = 0;
    QCOMPARE(PMGetFirstPage(&settings, &first), noErr);
    QCOMPARE(PMGetLastPage(&settings, &last), noErr);
    QCOMPARE(first, 1U);
    QCOMPARE(last, kAllPages);
}

void PMCoreTest::pageRangeIsSet()
{
    PrintSettings settings;
    quint32 first = 0;
    quint32 last = 0;
    QCOMPARE(PMSetFirstPage(&settings, 2, false), noErr);
    QCOMPARE(PMSetLastPage(&settings, kAllPages, false), noErr);
    QCOMPARE(PMGetFirstPage(&settings, &first), noErr);
    QCOMPARE(PMGetLastPage(&settings, &last), noErr);
    QCOMPARE(first, 2U);
    QCOMPARE(last, kAllPages);
    QCOMPARE(settings.values().keys(), QStringList({kFirstPageKey, kLastPageKey}));
}

void PMCoreTest::pageRangeIsSetThoughItCannotBeLocked()
{
    PrintSettings settings;
    quint32 page = 0;
    QCOMPARE(PMSetFirstPage(&settings, 3, true), kPMLockIgnored);
    QCOMPARE(PMGetFirstPage(&settings, &page), noErr);
    QCOMPARE(page, 3U);
    QCOMPARE(PMSetLastPage(&settings, 4, true), kPMLockIgnored);
    QCOMPARE(PMGetLastPage(&settings, &page), noErr);
    QCOMPARE(page, 4U);
    QCOMPARE(PMSetLastPage(&settings, 5, false), noErr);
    QCOMPARE(PMGetLastPage(&settings, &page), noErr);
    QCOMPARE(page, 5U);
}

void PMCoreTest::pageRangeTakesNoPageZero()
{
    PrintSettings settings;
    QCOMPARE(PMSetFirstPage(&settings, 0, false), kPMValueOutOfRange);
    QCOMPARE(PMSetLastPage(&settings, 0, true), kPMValueOutOfRange);
    QCOMPARE(settings.values(), QVariantMap());
}

void PMCoreTest::pageRangeSurvivesBeingSaved()
{
    PrintSettings settings;
    QCOMPARE(PMSetFirstPage(&settings, 7, false), noErr);
    QCOMPARE(PMSetLastPage(&settings, kAllPages, false), noErr);
    QByteArray data;
    std::unique_ptr<PrintSettings> read;
    QCOMPARE(PMPrintSettingsCreateDataRepresentation(&settings, &data, kPMDataFormatXMLDefault),
             noErr);
    QCOMPARE(PMPrintSettingsCreateWithDataRepresentation(data, &read), noErr);
    quint32 first = 0;
    quint32 last = 0;
    QCOMPARE(PMGetFirstPage(read.get(), &first), noErr);
    QCOMPARE(PMGetLastPage(read.get(), &last), noErr);
    QCOMPARE(first, 7U);
    QCOMPARE(last, kAllPages);
}

void PMCoreTest::pageRangeReadsItsEntries_data()
{
    const TestTable<QVariant, quint32> table("entry", "page");
    table.add("int", QVariant(3), 3U);
    table.add("unsigned", QVariant(kAllPages), kAllPages);
    table.add("long long", QVariant(4LL), 4U);
    table.add("unsigned long long", QVariant(5ULL), 5U);
    table.add("short", QVariant::fromValue<short>(6), 6U);
    table.add("byte", QVariant::fromValue<quint8>(255), 255U);
    table.add("zero", QVariant(0), 0U);
    table.add("negative", QVariant(-1), 0U);
    table.add("smallest", QVariant(std::numeric_limits<qlonglong>::min()), 0U);
    table.add("beyond 32 bits", QVariant(4294967296LL), 0U);
    table.add("largest", QVariant(std::numeric_limits<qulonglong>::max()), 0U);
    table.add("real", QVariant(3.0), 0U);
    table.add("text", QVariant(u"3"_s), 0U);
    table.add("truth", QVariant(true), 0U);
    table.add("list", QVariant(QVariantList{3}), 0U);
}

void PMCoreTest::pageRangeReadsItsEntries()
{
    QFETCH(QVariant, entry);
    QFETCH(quint32, page);
    PrintSettings settings({{kFirstPageKey, entry}, {kLastPageKey, entry}});
    quint32 first = 0;
    quint32 last = 0;
    const OSStatus expected = page == 0 ? kPMInvalidValue : noErr;
    QCOMPARE(PMGetFirstPage(&settings, &first), expected);
    QCOMPARE(PMGetLastPage(&settings, &last), expected);
    QCOMPARE(first, page);
    QCOMPARE(last, page);
}

void PMCoreTest::printerTellsItsDeviceURI()
{
    QString uri = u"before"_s;
    Printer unknown(u"Label"_s);
    QCOMPARE(unknown.name(), u"Label"_s);
    QCOMPARE(PMPrinterCopyDeviceURI(&unknown, &uri), noErr);
    QVERIFY(uri.isNull());

    const QString given = u"usb://Korvane/LX%20200?serial="_s + QString(100'000, u'7');
    Printer known(u"Label"_s, given);
    QCOMPARE(PMPrinterCopyDeviceURI(&known, &uri), noErr);
    QCOMPARE(uri, given);
}

void PMCoreTest::schemeStandsBeforeTheColon_data()
{
    const TestTable<QString, QString> table("uri", "scheme");

    QTest::newRow("usb") << u"usb://Korvane/LX%20200"_s << u"usb"_s;
    QTest::newRow("own case") << u"IPP://host"_s << u"IPP"_s;
    table.add("every character", u"a1+-.Z9:x"_s, u"a1+-.Z9"_s);
    table.add("nothing after it", u"lpd:"_s, u"lpd"_s);
    table.add("first colon", u"a:b:c"_s, u"a"_s);
    table.add("no colon", u"usb"_s, QString());
    table.add("empty", u""_s, QString());
    table.add("null", QString(), QString());
    QTest::newRow("nothing before it") << u"://host"_s << QString();
    QTest::newRow("digit first") << u"1usb://x"_s << QString();
    QTest::newRow("plus first") << u"+usb://x"_s << QString();
    table.add("path", u"/dev/usb:1"_s, QString());
    table.add("space", u"us b:x"_s, QString());
    table.add("letter beyond ASCII", u"üsb:x"_s, QString());
    table.add("digit beyond ASCII", u"u１:x"_s, QString());
    table.add("underscore", u"a_b:x"_s, QString());
}

void PMCoreTest::schemeStandsBeforeTheColon()
{
    QFETCH(QString, uri);
    QFETCH(QString, scheme);
    QCOMPARE(URLCopyScheme(uri), scheme);
    QCOMPARE(URLCopyScheme(uri).isNull(), scheme.isNull());
}

void PMCoreTest::nullHandlesAreNamed()
{
    PMPaper paper = nullptr;
    QString text = u"before"_s;
    double height = -7;
    QVariant value = 7;
    QByteArray data("before");
    quint32 page = 7;
    QCOMPARE(PMGetPageFormatPaper(nullptr, &paper), kPMInvalidPageFormat);
    QCOMPARE(PMPaperGetPPDPaperName(nullptr, &text), kPMInvalidPaper);
    QCOMPARE(PMPaperGetHeight(nullptr, &height), kPMInvalidPaper);
    QCOMPARE(PMPrintSettingsGetValue(nullptr, u"a"_s, &value), kPMInvalidPrintSettings);
    QCOMPARE(PMPrintSettingsCreateDataRepresentation(nullptr, &data, kPMDataFormatXMLDefault),
             kPMInvalidPrintSettings);
    QCOMPARE(PMSessionGetDataFromSession(nullptr, u"a"_s, &value), kPMInvalidPrintSession);
    QCOMPARE(PMGetFirstPage(nullptr, &page), kPMInvalidPrintSettings);
    QCOMPARE(PMGetLastPage(nullptr, &page), kPMInvalidPrintSettings);
    QCOMPARE(PMSetFirstPage(nullptr, 1, false), kPMInvalidPrintSettings);
    QCOMPARE(PMSetLastPage(nullptr, 1, false), kPMInvalidPrintSettings);
    QCOMPARE(PMPrinterCopyDeviceURI(nullptr, &text), kPMInvalidPrinter);

    QCOMPARE(text, u"before"_s);
    QCOMPARE(height, -7);
    QCOMPARE(value, QVariant(7));
    QCOMPARE(data, QByteArray("before"));
    QCOMPARE(page, 7U);
}

void PMCoreTest::nullResultsAreRefused()
{
    PageFormat format;
    const Paper paper(u"C_62"_s, -1);
    PrintSettings settings({{u"a"_s, 1}});
    PrintSession session;
    session.setValue(u"a"_s, 1);
    Printer printer(u"Label"_s);
    QCOMPARE(PMGetPageFormatPaper(&format, nullptr), kPMInvalidParameter);
    QCOMPARE(PMPaperGetPPDPaperName(&paper, nullptr), kPMInvalidParameter);
    QCOMPARE(PMPaperGetHeight(&paper, nullptr), kPMInvalidParameter);
    QCOMPARE(PMPrintSettingsGetValue(&settings, u"a"_s, nullptr), kPMInvalidParameter);
    QCOMPARE(PMPrintSettingsCreateDataRepresentation(&settings, nullptr, kPMDataFormatXMLDefault),
             kPMInvalidParameter);
    QCOMPARE(PMPrintSettingsCreateWithDataRepresentation(QByteArray(), nullptr),
             kPMInvalidParameter);
    QCOMPARE(PMSessionGetDataFromSession(&session, u"a"_s, nullptr), kPMInvalidParameter);
    QCOMPARE(PMGetFirstPage(&settings, nullptr), kPMInvalidParameter);
    QCOMPARE(PMGetLastPage(&settings, nullptr), kPMInvalidParameter);
    QCOMPARE(PMPrinterCopyDeviceURI(&printer, nullptr), kPMInvalidParameter);
}

KV_CORE_TEST(PMCoreTest)
#include "tst_pmcore.moc"
