// SPDX-License-Identifier: Apache-2.0
#include "MediumLookUp.h"

#include "ppd/TapeInfo.h"
#include "support/TestHost.h"

#include <QTest>

#include <cmath>
#include <cstring>
#include <limits>

/// The medium and the colours of a job.
class TapeInfoTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void jobWithoutAnyTraceOfItsMedium();
    void paperOfNoHeightEndsTheLookup();
    void lengthIsInMillimetres_data();
    void lengthIsInMillimetres();
    void classifiesListedSizes_data();
    void classifiesListedSizes();
    void customSizeOfThePrinter();
    void sizesOfOtherNamesAreStandard_data();
    void sizesOfOtherNamesAreStandard();
    void jobWithoutPPDHasNoListedSizes();
    void emptyNameIsACustomSize();
    void nameFromTheTicketIsACustomSize();
    void ownNameGoesBeforeTheTickets();
    void longNames_data();
    void longNames();
    void pageFormatThatIsMissing();
    void pageFormatWithoutPaper();
    void paperOfImpossibleHeight_data();
    void paperOfImpossibleHeight();
    void jobWithoutSettings();

    void roundsHalvesAwayFromZero_data();
    void roundsHalvesAwayFromZero();
    void roundsToTheNearerLimitBeyond64Bits_data();
    void roundsToTheNearerLimitBeyond64Bits();
    void convertsUnits();
};

namespace {
constexpr double height62 = 175.748;

PPDHandle ppdWithSizes(const QByteArrayList &names)
{
    PPDText text;
    for (const QByteArray &name : names) {
        text.size(name, 100.0, 200.0);
    }
    return text.open();
}

/// A printer with three sizes, the second of which has the name, be it one that a file cannot give.
PPDHandle ppdListing(const QByteArray &name)
{
    PPDHandle ppd = ppdWithSizes({"A4", "B5", "Letter"});
    std::strcpy(ppd->sizes[1].name, name.constData());
    return ppd;
}
} // namespace

void TapeInfoTest::jobWithoutAnyTraceOfItsMedium()
{
    TestHost host(ppdWithSizes({"C_62"}));
    host.setPaper(QString(), height62);
    const TapeInfo info = infoOf(host);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.tapeState, 2);
    QCOMPARE(info.colorSetting, 2);
    QCOMPARE(info.length, height62 / 72.0 / 0.0393701);
}

void TapeInfoTest::paperOfNoHeightEndsTheLookup()
{
    TestHost host(ppdWithSizes({"C_62"}));
    host.setTicket({{colorKey, u"MultiColorBlackRed"_s}, {paperKey, u"DC24"_s}});
    host.setPaper(u"C_62"_s, 0.0);
    TapeInfo info = infoOf(host);
    QCOMPARE(info.length, 100.0);
    QCOMPARE(info.tapeState, 0);
    QCOMPARE(info.colorSetting, 0);
    QCOMPARE(info.paperName, u"C_62"_s);

    host.setPaper(QString(), 0.0);
    info = infoOf(host);
    QCOMPARE(info.length, 100.0);
    QCOMPARE(info.tapeState, 0);
    QCOMPARE(info.colorSetting, 0);
    QCOMPARE(info.paperName, u"DC24"_s);
}

void TapeInfoTest::lengthIsInMillimetres_data()
{
    QTest::addColumn<double>("points");
    QTest::addColumn<double>("millimetres");

    QTest::newRow("62 mm") << height62 << height62 / 72.0 / 0.0393701;
    QTest::newRow("one inch") << 72.0 << 1.0 / 0.0393701;
    QTest::newRow("one point") << 1.0 << 1.0 / 72.0 / 0.0393701;
    QTest::newRow("a mile") << 4561920.0 << 4561920.0 / 72.0 / 0.0393701;
}

void TapeInfoTest::lengthIsInMillimetres()
{
    QFETCH(double, points);
    QFETCH(double, millimetres);
    TestHost host(ppdWithSizes({"C_62"}));
    host.setPaper(u"C_62"_s, points);
    const double length = infoOf(host).length;
    QVERIFY2(length == millimetres, qPrintable(QString::number(length, 'g', 17)));
}

void TapeInfoTest::classifiesListedSizes_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<qint32>("state");

    const auto row = [](const char *name, qint32 state) {
        QTest::newRow(name) << QByteArray(name) << state;
    };
    row("DC24", 1);
    row("AV2067", 1);
    row("FL12", 1);
    row("C_62", 1);
    row("DC", 1);
    row("W62H100", 0);
    row("HS12", 0);
    row("dc24", 0);
    row("C62", 0);
    row("C", 0);
    row("xDC24", 0);
    row("Custom.62x100", 2);
    row("CustomSize", 2);
    row("Custom", 2);
    row("Custo", 0);
    row("custom", 0);
    row("W62Custom", 0);
}

void TapeInfoTest::classifiesListedSizes()
{
    QFETCH(QByteArray, name);
    TestHost host(ppdListing(name));
    host.setPaper(QString::fromLatin1(name));
    const TapeInfo info = infoOf(host);
    QTEST(info.tapeState, "state");
    QCOMPARE(info.paperName, QString::fromLatin1(name));
    QCOMPARE(info.colorSetting, 2);
}

void TapeInfoTest::customSizeOfThePrinter()
{
    TestHost host(PPDText()
                      .size("A4", 595, 842)
                      .attribute("HWMargins", "0 0 0 0")
                      .attribute("VariablePaperSize", "True")
                      .attribute("CustomPageSize True", "pop")
                      .open());
    host.setPaper(u"Custom"_s);
    QCOMPARE(infoOf(host).tapeState, 2);
    host.setPaper(u"A4"_s);
    QCOMPARE(infoOf(host).tapeState, 0);
}

void TapeInfoTest::sizesOfOtherNamesAreStandard_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("unknown") << u"DC99"_s;
    QTest::newRow("other case") << u"DC24A"_s;
    QTest::newRow("listed one and more") << u"DC24x"_s;
    QTest::newRow("start of a listed one") << u"DC2"_s;
    QTest::newRow("Custom") << u"Custom.1x1"_s;
    QTest::newRow("longest listed one and more") << u"DC"_s + QString(39, u'9');
}

void TapeInfoTest::sizesOfOtherNamesAreStandard()
{
    QFETCH(QString, name);
    TestHost host(ppdWithSizes({"DC24", "DC24a", "C_62", "DC" + QByteArray(38, '9')}));
    host.setPaper(name);
    const TapeInfo info = infoOf(host);
    QCOMPARE(info.tapeState, 0);
    QCOMPARE(info.paperName, name);
}

void TapeInfoTest::jobWithoutPPDHasNoListedSizes()
{
    TestHost host(nullptr);
    host.setPaper(u"DC24"_s, 72.0);
    const TapeInfo info = infoOf(host);
    QCOMPARE(info.tapeState, 0);
    QCOMPARE(info.length, 1.0 / 0.0393701);
}

void TapeInfoTest::emptyNameIsACustomSize()
{
    TestHost host(ppdWithSizes({"DC24"}));
    host.setTicket({{paperKey, u"DC24"_s}});
    host.setPaper(u""_s);
    const TapeInfo info = infoOf(host);
    QCOMPARE(info.tapeState, 2);
    QCOMPARE(info.paperName, u""_s);
    QVERIFY(!info.paperName.isNull());
}

void TapeInfoTest::nameFromTheTicketIsACustomSize()
{
    TestHost host(ppdWithSizes({"DC24", "W62H100"}));
    host.setPaper(QString());
    for (const QString &name : {u"DC24"_s, u"W62H100"_s, u"HS12"_s}) {
        host.setTicket({{paperKey, name}});
        const TapeInfo info = infoOf(host);
        QCOMPARE(info.paperName, name);
        QCOMPARE(info.tapeState, 2);
    }
}

void TapeInfoTest::ownNameGoesBeforeTheTickets()
{
    TestHost host(ppdWithSizes({"DC24", "W62H100"}));
    host.setPaper(u"W62H100"_s);
    host.setTicket({{paperKey, u"DC24"_s}});
    const TapeInfo info = infoOf(host);
    QCOMPARE(info.paperName, u"W62H100"_s);
    QCOMPARE(info.tapeState, 0);
}

void TapeInfoTest::longNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<qint32>("state");
    QTest::addColumn<qsizetype>("length");

    const auto row = [](const char *title, const QString &name, qint32 state, qsizetype length) {
        QTest::newRow(title) << name << state << length;
    };
    row("255 bytes", u"FL"_s + QString(253, u'1'), 0, 255);
    row("256 bytes", u"FL"_s + QString(254, u'1'), 2, 0);
    row("300 bytes", u"FL"_s + QString(298, u'1'), 2, 0);
    row("a million bytes", u"FL"_s + QString(999'998, u'1'), 2, 0);
    row("255 bytes in 128 characters", u"F"_s + QString(127, u'é'), 0, 255);
    row("256 bytes in 128 characters", QString(128, u'é'), 2, 0);
}

void TapeInfoTest::longNames()
{
    QFETCH(QString, name);
    QFETCH(qint32, state);
    QFETCH(qsizetype, length);
    TestHost host(ppdWithSizes({"FL12"}));
    host.setPaper(name);
    const TapeInfo info = infoOf(host);
    QCOMPARE(info.tapeState, state);
    QCOMPARE(info.paperName, name);
    QCOMPARE(paperNameOfPageFormat(host.pageFormat()).size(), length);
}

void TapeInfoTest::pageFormatThatIsMissing()
{
    TestHost host(ppdWithSizes({"DC24"}));
    TapeInfo info = garbage();
    QCOMPARE(GetTapeInfo(nullptr, host.printSettings(), nullptr, host.ppdFile(), &info),
             kPMInvalidPageFormat);
    QCOMPARE(info.length, 100.0);
    QCOMPARE(info.tapeState, 0);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.colorSetting, 0);
    QVERIFY(paperNameOfPageFormat(nullptr).isEmpty());
}

void TapeInfoTest::pageFormatWithoutPaper()
{
    TestHost host(ppdWithSizes({"DC24"}));
    host.setTicket({{colorKey, u"MultiColorBlackRed"_s}, {paperKey, u"DC24"_s}});
    host.format = PageFormat();
    const TapeInfo info = infoOf(host);
    QCOMPARE(info.length, 100.0);
    QCOMPARE(info.tapeState, 0);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.colorSetting, 0);
    QVERIFY(paperNameOfPageFormat(host.pageFormat()).isEmpty());
}

void TapeInfoTest::paperOfImpossibleHeight_data()
{
    QTest::addColumn<double>("height");

    QTest::newRow("negative") << -1.0;
    QTest::newRow("endless") << std::numeric_limits<double>::infinity();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN();
}

void TapeInfoTest::paperOfImpossibleHeight()
{
    QFETCH(double, height);
    TestHost host(ppdWithSizes({"DC24"}));
    host.setPaper(u"DC24"_s, height);
    TapeInfo info;
    QCOMPARE(lookUp(host, &info), kPMInvalidPaper);
    QCOMPARE(info.paperName, u"DC24"_s);
    QCOMPARE(info.length, 100.0);
    QCOMPARE(info.tapeState, 0);
    QCOMPARE(info.colorSetting, 0);
}

void TapeInfoTest::jobWithoutSettings()
{
    TestHost host(ppdWithSizes({"DC24"}));
    host.settings.reset();
    host.setPaper(QString());
    TapeInfo info = infoOf(host);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.tapeState, 2);
    QCOMPARE(info.colorSetting, 2);

    info = garbage();
    QCOMPARE(GetTapeInfo2(nullptr, nullptr, &info), noErr);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(GetColorSetting(nullptr, nullptr, &info), noErr);
    QCOMPARE(info.colorSetting, 2);
}

void TapeInfoTest::roundsHalvesAwayFromZero_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("rounded");

    const auto row = [](double value, qint64 rounded) {
        QTest::addRow("%.17g", value) << value << rounded;
    };
    row(0.5, 1);
    row(-0.5, -1);
    row(0.49, 0);
    row(-0.49, 0);
    row(0.49999999999999994, 0);
    row(2.5, 3);
    row(-2.5, -3);
    row(2.4, 2);
    row(-2.4, -2);
    row(2.6, 3);
    row(-2.6, -3);
    row(0.0, 0);
    row(62.0, 62);
    row(4503599627370495.5, 4503599627370496);
    row(4503599627370497.0, 4503599627370497);
    row(-9007199254740993.0, -9007199254740992);
}

void TapeInfoTest::roundsHalvesAwayFromZero()
{
    QFETCH(double, value);
    QTEST(RoundDouble(value), "rounded");
}

void TapeInfoTest::roundsToTheNearerLimitBeyond64Bits_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<qint64>("rounded");

    using Limits = std::numeric_limits<qint64>;
    const double limit = std::ldexp(1.0, 63);
    const double endless = std::numeric_limits<double>::infinity();
    QTest::newRow("last below") << std::nextafter(limit, 0.0) << Limits::max() - 1023;
    QTest::newRow("first beyond") << limit << Limits::max();
    QTest::newRow("far beyond") << 1e300 << Limits::max();
    QTest::newRow("endless") << endless << Limits::max();
    QTest::newRow("last above") << std::nextafter(-limit, 0.0) << Limits::min() + 1024;
    QTest::newRow("lower limit") << -limit << Limits::min();
    QTest::newRow("far below") << -1e300 << Limits::min();
    QTest::newRow("endless below") << -endless << Limits::min();
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << Limits::min();
}

void TapeInfoTest::roundsToTheNearerLimitBeyond64Bits()
{
    QFETCH(double, value);
    QTEST(RoundDouble(value), "rounded");
}

void TapeInfoTest::convertsUnits()
{
    QVERIFY(MiriToInch(62.0) == 62.0 * 0.0393701);
    QVERIFY(InchToMiri(1.0) == 1.0 / 0.0393701);
    QVERIFY(InchToMiri(1.0) != 25.4);
    QVERIFY(MiriToInch(0.0) == 0.0);
    QVERIFY(std::abs(InchToMiri(MiriToInch(62.0)) - 62.0) < 1e-12);
    QVERIFY(std::abs(MiriToInch(InchToMiri(-2.5)) + 2.5) < 1e-12);
}

KV_CORE_TEST(TapeInfoTest)
#include "tst_tapeinfo.moc"
