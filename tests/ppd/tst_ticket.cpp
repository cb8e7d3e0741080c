// SPDX-License-Identifier: Apache-2.0
#include "MediumLookUp.h"

#include "ppd/TapeInfo.h"
#include "printcore/PropertyList.h"
#include "support/TestHost.h"

#include <QTest>

#include <limits>

/// What the medium's lookup reads from the job's settings and session.
class TicketTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsTheColours_data();
    void readsTheColours();
    void paperNameLookupForgetsTheNameBefore();
    void ticketThatCannotBeRead_data();
    void ticketThatCannotBeRead();
    void ticketEntriesOfOtherTypes_data();
    void ticketEntriesOfOtherTypes();
    void oneBadTicketEntryLeavesTheOther();
    void readsNumbersOfTheSession_data();
    void readsNumbersOfTheSession();
    void sessionValueThatIsNoNumber_data();
    void sessionValueThatIsNoNumber();
    void sessionWithoutTheNumber();
    void readsThePageRange();
    void writesThePageRangeBack();
    void unreadableFirstPageLeavesTheLast();
    void unreadableLastPageIsReported();
    void pageRangeOfNoSettings();
};

namespace {
const QString firstPageKey = QStringLiteral("com.korvane.print.settings.FirstPage");
const QString lastPageKey = QStringLiteral("com.korvane.print.settings.LastPage");

PPDHandle tapePrinter()
{
    return PPDText().size("DC24", 100.0, 200.0).open();
}
} // namespace

void TicketTest::readsTheColours_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<qint32>("setting");

    QTest::newRow("monochrome") << u"MultiColorMonochrome"_s << 0;
    QTest::newRow("black and red") << u"MultiColorBlackRed"_s << 1;
    QTest::newRow("monochrome among other words") << u"x.MultiColorMonochrome.y"_s << 0;
    QTest::newRow("both") << u"MultiColorBlackRed MultiColorMonochrome"_s << 1;
    QTest::newRow("both, the other way round") << u"MultiColorMonochromeMultiColorBlackRed"_s << 1;
    QTest::newRow("other case") << u"multicolormonochrome"_s << 2;
    QTest::newRow("part of a word") << u"MultiColorBlack"_s << 2;
    QTest::newRow("empty") << u""_s << 2;
}

void TicketTest::readsTheColours()
{
    QFETCH(QString, mode);
    QFETCH(qint32, setting);
    TestHost host(tapePrinter());
    host.setTicket({{colorKey, mode}});
    host.setPaper(u"DC24"_s);
    QCOMPARE(infoOf(host).colorSetting, setting);
    TapeInfo info = garbage();
    QCOMPARE(GetColorSetting(nullptr, host.printSettings(), &info), noErr);
    QCOMPARE(info.colorSetting, setting);
    QCOMPARE(info.paperName, u"garbage"_s);
}

void TicketTest::paperNameLookupForgetsTheNameBefore()
{
    TestHost host(nullptr);
    host.setTicket({{colorKey, u"MultiColorBlackRed"_s}});
    TapeInfo info = garbage();
    QCOMPARE(GetTapeInfo2(nullptr, host.printSettings(), &info), noErr);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.tapeState, 77);
    QCOMPARE(info.colorSetting, 77);
}

void TicketTest::ticketThatCannotBeRead_data()
{
    QTest::addColumn<QVariant>("ticket");

    const QByteArray whole = PropertyList::write(
        QVariantMap{{paperKey, u"DC24"_s}, {colorKey, u"MultiColorBlackRed"_s}});
    const QByteArray list = PropertyList::write(QVariantList{paperKey, u"DC24"_s});
    QTest::newRow("none") << QVariant();
    QTest::newRow("text instead of data") << QVariant(QString::fromUtf8(whole));
    QTest::newRow("number instead of data") << QVariant(62);
    QTest::newRow("dictionary instead of data") << QVariant(QVariantMap{{paperKey, u"DC24"_s}});
    QTest::newRow("no bytes") << QVariant(QByteArray(""));
    QTest::newRow("no property list") << QVariant(QByteArray("MqPaperName2=DC24"));
    QTest::newRow("cut off") << QVariant(whole.left(whole.size() / 2));
    QTest::newRow("zeros") << QVariant(QByteArray(1000, '\0'));
    QTest::newRow("a list") << QVariant(list);
}

void TicketTest::ticketThatCannotBeRead()
{
    QFETCH(QVariant, ticket);
    TestHost host(tapePrinter());
    host.settings->setValue(kPrivateTicketKey, ticket);
    host.setPaper(QString(), 72.0);
    const TapeInfo info = infoOf(host);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.tapeState, 2);
    QCOMPARE(info.colorSetting, 2);
    QCOMPARE(info.length, 1.0 / 0.0393701);
}

void TicketTest::ticketEntriesOfOtherTypes_data()
{
    QTest::addColumn<QVariant>("entry");

    QTest::newRow("number") << QVariant(62);
    QTest::newRow("truth value") << QVariant(true);
    QTest::newRow("data") << QVariant(QByteArray("MultiColorBlackRed"));
    QTest::newRow("list") << QVariant(QVariantList{u"MultiColorBlackRed"_s});
    QTest::newRow("dictionary") << QVariant(QVariantMap{{u"a"_s, u"MultiColorBlackRed"_s}});
}

void TicketTest::ticketEntriesOfOtherTypes()
{
    QFETCH(QVariant, entry);
    TestHost host(tapePrinter());
    host.setTicket({{paperKey, entry}, {colorKey, entry}});
    host.setPaper(QString());
    const TapeInfo info = infoOf(host);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.tapeState, 2);
    QCOMPARE(info.colorSetting, 2);
}

void TicketTest::oneBadTicketEntryLeavesTheOther()
{
    TestHost host(tapePrinter());
    host.setPaper(QString());
    host.setTicket({{paperKey, 62}, {colorKey, u"MultiColorBlackRed"_s}});
    TapeInfo info = infoOf(host);
    QVERIFY(info.paperName.isNull());
    QCOMPARE(info.colorSetting, 1);

    host.setTicket({{paperKey, u"DC24"_s}, {colorKey, 0}});
    info = infoOf(host);
    QCOMPARE(info.paperName, u"DC24"_s);
    QCOMPARE(info.colorSetting, 2);
}

void TicketTest::readsNumbersOfTheSession_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<qint32>("number");

    QTest::newRow("number") << QVariant(62) << 62;
    QTest::newRow("wide number") << QVariant(qlonglong(-7)) << -7;
    QTest::newRow("zero") << QVariant(0) << 0;
    QTest::newRow("largest") << QVariant(qlonglong(2147483647)) << 2147483647;
    QTest::newRow("smallest") << QVariant(qlonglong(-2147483648LL))
                              << std::numeric_limits<qint32>::min();
    QTest::newRow("character") << QVariant::fromValue('\x3e') << 62;
    QTest::newRow("signed character") << QVariant::fromValue(static_cast<signed char>(-7)) << -7;
    QTest::newRow("byte") << QVariant::fromValue(uchar(200)) << 200;
    QTest::newRow("short") << QVariant::fromValue(short(-7)) << -7;
    QTest::newRow("unsigned short") << QVariant::fromValue(ushort(40'000)) << 40'000;
    QTest::newRow("unsigned") << QVariant::fromValue(62U) << 62;
    QTest::newRow("long") << QVariant::fromValue(-7L) << -7;
    QTest::newRow("unsigned long") << QVariant::fromValue(62UL) << 62;
    QTest::newRow("single precision") << QVariant::fromValue(3.75F) << 3;
    QTest::newRow("fraction") << QVariant(3.75) << 3;
    QTest::newRow("negative fraction") << QVariant(-3.75) << -3;
}

void TicketTest::readsNumbersOfTheSession()
{
    QFETCH(QVariant, value);
    PrintSession session;
    session.setValue(u"key"_s, value);
    qint32 number = 77;
    QCOMPARE(GetTicketFromSession(&session, u"key"_s, &number), noErr);
    QTEST(number, "number");
}

void TicketTest::sessionValueThatIsNoNumber_data()
{
    QTest::addColumn<QVariant>("value");

    QTest::newRow("text") << QVariant(u"62"_s);
    QTest::newRow("empty text") << QVariant(u""_s);
    QTest::newRow("data") << QVariant(QByteArray("62"));
    QTest::newRow("list") << QVariant(QVariantList{62});
    QTest::newRow("dictionary") << QVariant(QVariantMap{{u"key"_s, 62}});
}

void TicketTest::sessionValueThatIsNoNumber()
{
    QFETCH(QVariant, value);
    PrintSession session;
    session.setValue(u"key"_s, value);
    qint32 number = 77;
    QCOMPARE(GetTicketFromSession(&session, u"key"_s, &number), noErr);
    QCOMPARE(number, 77);
}

void TicketTest::sessionWithoutTheNumber()
{
    PrintSession session;
    session.setValue(u"other"_s, 62);
    qint32 number = 77;
    QCOMPARE(GetTicketFromSession(&session, u"key"_s, &number), -30891);
    QCOMPARE(GetTicketFromSession(nullptr, u"other"_s, &number), -30891);
    QCOMPARE(number, 77);
}

void TicketTest::readsThePageRange()
{
    PrintSettings settings;
    PMSetFirstPage(&settings, 3, false);
    PMSetLastPage(&settings, 7, false);
    PageRangeInfo range{77, 77};
    QCOMPARE(GetTapeInfo3(&settings, &range), noErr);
    QCOMPARE(range.firstPage, 3U);
    QCOMPARE(range.lastPage, 7U);
}

void TicketTest::writesThePageRangeBack()
{
    PrintSettings settings;
    PageRangeInfo range;
    QCOMPARE(GetTapeInfo3(&settings, &range), noErr);
    QCOMPARE(range.firstPage, 1U);
    QCOMPARE(range.lastPage, std::numeric_limits<quint32>::max());
    QCOMPARE(settings.value(firstPageKey), QVariant(1LL));
    QCOMPARE(settings.value(lastPageKey), QVariant(4294967295LL));
}

void TicketTest::unreadableFirstPageLeavesTheLast()
{
    PrintSettings settings({{firstPageKey, u"three"_s}, {lastPageKey, 7}});
    PageRangeInfo range{77, 77};
    QCOMPARE(GetTapeInfo3(&settings, &range), noErr);
    QCOMPARE(range.firstPage, 0U);
    QCOMPARE(range.lastPage, 7U);
    QCOMPARE(settings.value(firstPageKey), QVariant(u"three"_s));
}

void TicketTest::unreadableLastPageIsReported()
{
    PrintSettings settings({{firstPageKey, 3}, {lastPageKey, u"seven"_s}});
    PageRangeInfo range{77, 77};
    QCOMPARE(GetTapeInfo3(&settings, &range), kPMInvalidValue);
    QCOMPARE(range.firstPage, 3U);
    QCOMPARE(range.lastPage, 0U);
}

void TicketTest::pageRangeOfNoSettings()
{
    PageRangeInfo range{77, 77};
    QCOMPARE(GetTapeInfo3(nullptr, &range), kPMInvalidPrintSettings);
    QCOMPARE(range.firstPage, 0U);
    QCOMPARE(range.lastPage, 0U);
}

KV_CORE_TEST(TicketTest)
#include "tst_ticket.moc"
