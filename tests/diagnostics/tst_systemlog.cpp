// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/PDELog.h"
#include "printcore/SystemLog.h"

#include "PrivateRoot.h"
#include "printcore/UTF8.h"
#include "support/PPDText.h"

#include <QRegularExpression>
#include <QTest>

#include <cerrno>

#include <sys/stat.h>
#include <syslog.h>

namespace {
/// The records of lines that are logged to a sink.
QByteArrayList recordsOf(const QStringList &lines)
{
    QByteArrayList records;
    setLogSink([&records](const QByteArray &record) { records += record; });
    for (const QString &line : lines) {
        logToSystem(line);
    }
    setLogSink({});
    return records;
}

/// The text of a record as a log daemon gets it; what is wrong with its head, if anything is.
QByteArray textOf(const QByteArray &record, const char *identity = program_invocation_short_name)
{
    static const QRegularExpression head(
        uR"(^<(\d+)>[A-Z][a-z]{2} [ 123]\d [0-2]\d:[0-5]\d:[0-5]\d ([\w-]+)(\[\d+\])?: )"_s);
    const QRegularExpressionMatch match = head.match(QString::fromLatin1(record));
    if (!match.hasMatch()) {
        return "no head: " + record;
    }
    if (match.captured(1).toInt() != (LOG_USER | LOG_NOTICE)) {
        return "other level: " + record;
    }
    if (match.captured(2) != QLatin1String(identity)) {
        return "other identity: " + record;
    }
    return record.mid(int(match.capturedLength()));
}

QByteArrayList textsOf(const QByteArrayList &records)
{
    QByteArrayList texts;
    for (const QByteArray &record : records) {
        texts += textOf(record);
    }
    return texts;
}

/// A line put together from its pieces; empty when a piece is missing or too long.
QByteArray joined(const QByteArrayList &pieces)
{
    QByteArray line;
    for (int i = 0; i < pieces.size(); ++i) {
        const QByteArray mark = QByteArray("(") + QByteArray::number(i + 1) + '/' +
                                QByteArray::number(pieces.size()) + ") ";
        if (!pieces[i].startsWith(mark) || pieces[i].size() > kLogRecordSize ||
            textOfUTF8(pieces[i]).isNull()) {
            return {};
        }
        line += pieces[i].mid(mark.size());
    }
    return line;
}

QString enormousLine()
{
    QString line;
    for (int i = 0; line.size() < 1 << 20; ++i) {
        line += QString::number(i) + u"ä あ \U0001F600\n%s"_s;
    }
    return line;
}
} // namespace

/// Lines as the log gets them.
class SystemLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void sinkTakesRecords_data();
    void sinkTakesRecords();
    void handsBackTheFormerSink();
    void sinkMayReplaceItself();
    void longestLineOfOneRecord();
    void cutsNoCharacter_data();
    void cutsNoCharacter();
    void enormousLineArrivesInPieces();
    void withoutADaemonNothingHappens();

    void socketGetsLines_data();
    void socketGetsLines();
    void socketGetsTaggedLines();
    void socketGetsTheOptionDump();
    void socketGetsEnormousLines();
    void socketKeepsTheApplicationsLog();
};

void SystemLogTest::init()
{
    const QByteArray function = QTest::currentTestFunction();
    const bool usesSocket = function.startsWith("socket") || function.startsWith("without");
    if (usesSocket && !PrivateRoot::isPossible()) {
        QSKIP("This user may have no root folder of its own.");
    }
}

void SystemLogTest::cleanup()
{
    setLogSink({});
}

void SystemLogTest::sinkTakesRecords_data()
{
    const TestTable<QString, QByteArray> table("line", "record");

    table.add("plain", u"text"_s, "text");
    table.add("empty", u""_s, QByteArray());
    table.add("null", QString(), QByteArray());
    table.add("percent signs", u"%s %n %m %%"_s, "%s %n %m %%");
    table.add("newlines", u"one\ntwo\n"_s, "one\ntwo\n");
    table.add("beyond ASCII", u"ä あ \U0001F600"_s, "\xc3\xa4 \xe3\x81\x82 \xf0\x9f\x98\x80");
    table.add("null characters", u"a\0b\0"_s,
              "a\xe2\x90\x80"
              "b\xe2\x90\x80");
    table.add("lone surrogate", u"a"_s + QChar(0xd800) + u'b', "a?b");
}

void SystemLogTest::sinkTakesRecords()
{
    QFETCH(QString, line);
    QFETCH(QByteArray, record);
    QCOMPARE(recordsOf({line}), QByteArrayList({record}));
}

void SystemLogTest::handsBackTheFormerSink()
{
    QByteArrayList former;
    QVERIFY(!setLogSink([&former](const QByteArray &record) { former += record; }));
    const LogSink handedBack = setLogSink([](const QByteArray &) {});
    logToSystem(u"to the latter"_s);
    QCOMPARE(former, QByteArrayList());
    handedBack("to the former");
    QCOMPARE(former, QByteArrayList({"to the former"}));
}

void SystemLogTest::sinkMayReplaceItself()
{
    QByteArrayList records;
    setLogSink([&records, name = QByteArray("first ")](const QByteArray &record) {
        records += name + record;
        setLogSink([&records](const QByteArray &next) { records += "second " + next; });
        records += name + "again";
    });
    logToSystem(u"a"_s);
    logToSystem(u"b"_s);
    QCOMPARE(records, QByteArrayList({"first a", "first again", "second b"}));
}

void SystemLogTest::longestLineOfOneRecord()
{
    const QString longest(kLogRecordSize, u'A');
    QCOMPARE(recordsOf({longest}), QByteArrayList({longest.toUtf8()}));
    const QByteArrayList pieces = recordsOf({longest + u'B'});
    QCOMPARE(pieces.size(), 2);
    QCOMPARE(joined(pieces), longest.toUtf8() + 'B');
}

void SystemLogTest::cutsNoCharacter_data()
{
    const TestTable<QString> table("character");

    table.add("2 bytes", u"ä"_s);
    table.add("3 bytes", u"あ"_s);
    table.add("4 bytes", u"\U0001F600"_s);
}

void SystemLogTest::cutsNoCharacter()
{
    QFETCH(QString, character);
    // The cut moves through the characters.
    for (int shift = 0; shift < 5; ++shift) {
        const QString line = QString(shift, u'A') + character.repeated(20000);
        const QByteArrayList pieces = recordsOf({line});
        QVERIFY(pieces.size() > 1);
        QVERIFY(joined(pieces) == line.toUtf8());
    }
}

void SystemLogTest::enormousLineArrivesInPieces()
{
    const QString line = enormousLine();
    const QByteArrayList pieces = recordsOf({line});
    QVERIFY(pieces.size() > 100);
    QVERIFY(joined(pieces) == line.toUtf8());
}

void SystemLogTest::withoutADaemonNothingHappens()
{
    PrivateRoot root;
    QFile::remove(root.path(u"dev/log"_s));
    QVERIFY(root.run([] {
        logToSystem(u"text"_s);
        return true;
    }));
    QCOMPARE(root.records(), QByteArrayList());
    QCOMPARE(root.entries(), QStringList());
}

void SystemLogTest::socketGetsLines_data()
{
    sinkTakesRecords_data();
}

void SystemLogTest::socketGetsLines()
{
    QFETCH(QString, line);
    QFETCH(QByteArray, record);
    PrivateRoot root;
    QVERIFY(root.run([line] {
        logToSystem(line);
        logToSystem(u"next"_s);
        return true;
    }));
    QCOMPARE(textsOf(root.records()), QByteArrayList({record, "next"}));
}

void SystemLogTest::socketGetsTaggedLines()
{
    PrivateRoot root;
    QVERIFY(root.run([] {
        const QString object = u"50% あ\nobject"_s;
        _PDEProlog(object, u"%d %@"_s, 5, u"100% %@\nGröße"_s);
        _PDEEpilog(nullptr, u"%d"_s, 6);
        _PDELog(object, u"%%"_s);
        return true;
    }));
    QCOMPARE(textsOf(root.records()), QByteArrayList({
                                          u"BEGIN self(50% あ\nobject) 5 100% %@\nGröße"_s.toUtf8(),
                                          "END 6",
                                          u"LOG self(50% あ\nobject) %"_s.toUtf8(),
                                      }));
}

void SystemLogTest::socketGetsTheOptionDump()
{
    const PPDHandle ppd = PPDText().onOff("KvHalfCut", "ON", "Half Cut 100%").open();
    QVERIFY(ppd);
    PrivateRoot root;
    QVERIFY(root.run([&ppd] {
        _PDELog_ppd_option_t(ppd.get(), "KvHalfCut");
        return true;
    }));
    QCOMPARE(textsOf(root.records()), QByteArrayList({
                                          "+-+-+-+-+-+-+-+-+-+- start is KvHalfCut",
                                          "***** conflicted | ",
                                          "***** keyword | KvHalfCut",
                                          "***** defchoice | ON",
                                          "***** text | Half Cut 100%",
                                          "***** ui == 1",
                                          "***** section == 0",
                                          "***** order == 0.000000",
                                          "***** num_choices == 2",
                                          "***** choices->marked | ",
                                          "***** choices->choice | OFF",
                                          "***** choices->text | Off",
                                          "+-+-+-+-+-+-+-+-+-+- end is KvHalfCut",
                                      }));
}

void SystemLogTest::socketGetsEnormousLines()
{
    const QString line = enormousLine();
    PrivateRoot root;
    QVERIFY(root.run([line] {
        logToSystem(line);
        return true;
    }));
    QVERIFY(root.records().size() > 100);
    QVERIFY(joined(textsOf(root.records())) == line.toUtf8());
}

void SystemLogTest::socketKeepsTheApplicationsLog()
{
    PrivateRoot root;
    QVERIFY(root.run([] {
        openlog("application", LOG_PID, LOG_LOCAL3);
        logToSystem(u"ours"_s);
        syslog(LOG_ERR, "its own");
        return true;
    }));
    QCOMPARE(root.records().size(), 2);
    QCOMPARE(textOf(root.records()[0], "application"), QByteArray("ours"));
    QVERIFY(root.records()[1].startsWith('<' + QByteArray::number(LOG_LOCAL3 | LOG_ERR) + '>'));
    QVERIFY(root.records()[1].endsWith("]: its own"));
}

KV_CORE_TEST(SystemLogTest)
#include "tst_systemlog.moc"
