// SPDX-License-Identifier: Apache-2.0
#include "BatchRun.h"
#include "PrintingTest.h"
#include "SampleChoices.h"
#include "SchedulerProxy.h"
#include "kvprint/BatchJournal.h"

#include <QFile>
#include <QJsonDocument>
#include <QTest>

#include <csignal>
#include <limits>

#include <sys/resource.h>

namespace {
/// What the scheduler is asked before a batch's first job is made.
constexpr int toReadPrinter = 3;

/// The most memory that a process has had in its space, in units of 1,024 bytes; −1 when nobody
/// knows.
int peakKilobytes(qint64 process)
{
    QFile status(u"/proc/%1/status"_s.arg(process));
    const QByteArray text = status.open(QIODevice::ReadOnly) ? status.readAll() : QByteArray();
    const QByteArray name = "VmHWM:";
    const auto start = text.indexOf(name);
    return start < 0 ? -1 : text.mid(start + name.size()).trimmed().split(' ').constFirst().toInt();
}

QString at(const SchedulerProxy &proxy)
{
    return u"CUPS_SERVER="_s + QString::fromLatin1(proxy.address());
}

/// As long as it lives, files of this process grow no larger.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : mHandler(signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &mBefore);
        const rlimit limited{bytes, mBefore.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &mBefore);
        signal(SIGXFSZ, mHandler);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    void (*mHandler)(int);
    rlimit mBefore{};
};
} // namespace

/// Many jobs from one process, as the scheduler and whoever writes the lines see them.
class tst_batch : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();

    void jobOfALine_data();
    void jobOfALine();
    void faultyLine_data();
    void faultyLine();
    void table_data();
    void table();
    void faultyRow_data();
    void faultyRow();
    void faultyHead_data();
    void faultyHead();
    void continuedTable();
    void linesFromAPipeAreAnsweredAtOnce();
    void memoryDoesNotGrow();
    void requestsAreFew();
    void replacedPPD();
    void warningsAreInTheAnswer();
    void stoppedPrinterIsToldOnce();
    void refusingPrinterHoldsItsOwnLinesAlone();
    void linesOfARefusingPrinterFailInTheEnd();
    void unusableJournal_data();
    void unusableJournal();
    void journalThatCannotBeWritten();
    void recordThatDoesNotFit();
    void answersThatCannotBeWritten();
    void continuedBatchPrintsTheRest();
    void cutJournal_data();
    void cutJournal();
    void lostAnswer_data();
    void lostAnswer();
    void schedulerThatBreaksOff();

private: // NOLINT(readability-redundant-access-specifiers)
    QString batch(const QByteArray &lines) { return mSite.file(u"batch.jsonl"_s, lines); }
    QByteArray journal() const;
    qsizetype jobCount() const { return mSite.scheduler().jobIds().size(); }

    QString mDocument;
    QString mJournal;
};

void tst_batch::initTestCase()
{
    PrintingTest::initTestCase();
    mDocument = mSite.document();
    mJournal = mSite.path(u"batch.jsonl.journal"_s);
}

void tst_batch::cleanup()
{
    QFile::remove(mJournal);
}

QByteArray tst_batch::journal() const
{
    QFile file(mJournal);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_batch::jobOfALine_data()
{
    const TestTable<QString, QJsonObject, QString, QString> table("printer", "members", "others",
                                                                  "attributes");
    table.add("nothing but a file", u"tape"_s, {}, QString(), QString());
    table.add("option", u"tape"_s, {{u"options"_s, QJsonObject{{u"KvHalfCut"_s, u"ON"_s}}}},
              u"KvHalfCut=ON"_s, QString());
    table.add("number and letters of either case", u"label"_s,
              {{u"options"_s, QJsonObject{{u"KvCutLabel"_s, 25}, {u"kvcutatend"_s, u"on"_s}}}},
              u"KvCutLabel=25 KvCutAtEnd=ON"_s, QString());
    table.add("preset", u"tape"_s, {{u"preset"_s, u"AHCMOffOnOffOff"_s}},
              u"KvAutoTapeCut=OFF KvHalfCut=ON"_s, QString());
    table.add("copies", u"tape"_s, {{u"copies"_s, 3}}, QString(), u"copies=3"_s);
    table.add("paper", u"tape"_s, {{u"paper"_s, u"T24x100"_s}}, QString(), u"media=T24x100"_s);
    table.add("option of another kind", u"tape"_s,
              {{u"options"_s, QJsonObject{{u"job-billing"_s, u"two words"_s}}}}, QString(),
              u"job-billing=two words"_s);
}

void tst_batch::jobOfALine()
{
    QFETCH(const QString, printer);
    QFETCH(QJsonObject, members);
    QFETCH(const QString, others);
    QFETCH(const QString, attributes);
    members.insert(u"printer"_s, printer);
    // The second is one that the panel is not asked for again.
    BatchRun run(batch(batchLine(mDocument, members).repeated(2)));
    QVERIFY2(run.end() == 0, qPrintable(run.errors()));
    QCOMPARE(run.jobs().size(), 2);
    const QList<int> jobs = run.jobs();
    for (const int id : jobs) {
        QCOMPARE(mSite.choices(id), SampleChoices::replaced(SampleChoices::seen(printer), others));
        const auto job = mSite.job(id);
        QVERIFY(job.value(u"job-printer-uri"_s).endsWith(u'/' + printer));
        QVERIFY(job.value(u"job-name"_s).endsWith(u" label.txt"));
        if (!attributes.isNull()) {
            QCOMPARE(job.value(attributes.section(u'=', 0, 0)), attributes.section(u'=', 1));
        }
    }
}

void tst_batch::faultyLine_data()
{
    const TestTable<QByteArray, QString> table("line", "fault");
    const auto add = [&](const char *name, const QJsonObject &members, const QString &fault) {
        table.add(name, batchLine(mDocument, members), fault);
    };
    table.add("no JSON", "label.txt\n", u"the line is no JSON: "_s);
    table.add("half an object", "{\"file\":\"label\n", u"the line is no JSON: "_s);
    table.add("no object", "[]\n", u"the line is no JSON object"_s);
    table.add("empty", "\n", u"the line is no JSON: "_s);
    table.add("no file", "{}\n", u"\"file\" has to be a text"_s);
    table.add("missing file", batchLine(u"/nowhere/a.pdf"_s),
              u"/nowhere/a.pdf: No such file or directory"_s);
    add("unknown member", {{u"cmd"_s, u"open"_s}}, u"there is no member \"cmd\""_s);
    add("copies that are none", {{u"copies"_s, 0}}, u"\"copies\" has to be 1 to 9999"_s);
    add("copies in words", {{u"copies"_s, u"two"_s}}, u"\"copies\" has to be a whole number"_s);
    add("options that are none", {{u"options"_s, u"KvHalfCut=ON"_s}},
        u"\"options\" has to be an object of option names with texts"_s);
    add("option without a text", {{u"options"_s, QJsonObject{{u"KvHalfCut"_s, QJsonValue()}}}},
        u"\"options\" has to be an object of option names with texts"_s);
    add("two papers",
        {{u"paper"_s, u"T24x100"_s}, {u"options"_s, QJsonObject{{u"media"_s, u"FL21x45"_s}}}},
        u"\"paper\" does not go with the option media"_s);
    add("unknown printer", {{u"printer"_s, u"nowhere"_s}},
        u"there is no printer nowhere; the printers are: all, "_s);
    add("unknown choice", {{u"options"_s, QJsonObject{{u"KvHalfCut"_s, u"MAYBE"_s}}}},
        u"KvHalfCut=MAYBE: the choices of KvHalfCut are: OFF, ON"_s);
    add("paper of another printer", {{u"paper"_s, u"62x29"_s}},
        u"media=62x29: the choices of media are: "_s);
    add("preset of another printer", {{u"preset"_s, u"CTMROnOffOff"_s}},
        u"--preset CTMROnOffOff: the presets are: "_s);
    add("choice that the paper forbids",
        {{u"paper"_s, u"FL21x45"_s}, {u"options"_s, QJsonObject{{u"KvHalfCut"_s, u"ON"_s}}}},
        u"KvHalfCut=ON cannot be chosen on the paper FL21x45"_s);
}

void tst_batch::faultyLine()
{
    QFETCH(const QByteArray, line);
    QFETCH(const QString, fault);
    const auto before = jobCount();
    BatchRun run(batch(batchLine(mDocument) + line + batchLine(mDocument)), {u"-d"_s, u"tape"_s});
    QCOMPARE(run.end(), 4);
    QCOMPARE(jobCount(), before + 2);
    QCOMPARE(run.answers().keys(), QList<int>({1, 2, 3}));
    const QString told = run.answers().value(2).value(u"error"_s).toString();
    QVERIFY2(told.contains(fault), qPrintable(told));
}

void tst_batch::table_data()
{
    const TestTable<QByteArray> table("table");
    const QByteArray file = mDocument.toUtf8();
    table.add("commas", "file,printer,copies,option:KvHalfCut\n" + file + ",tape,2,ON\n");
    table.add("semicolons", "file;printer;copies;option:KvHalfCut\n" + file + ";tape;2;ON\n");
    table.add("tabs", "file\tprinter\tcopies\toption:KvHalfCut\n" + file + "\ttape\t2\tON\n");
    table.add("other order, empty fields",
              "paper,option:KvHalfCut,option:KvMirror,copies,file,printer\n,ON,,2," + file +
                  ",tape\n");
    table.add("quotes", "\"file\",\"printer\",\"copies\",\"option:KvHalfCut\"\n\"" + file +
                            "\",\"tape\",\"2\",\"ON\"\n");
    table.add("as spreadsheets write it", "\xEF\xBB\xBF"
                                          "file;printer;copies;option:KvHalfCut\r\n" +
                                              file + ";tape;2;ON\r\n\r\n");
    table.add("no end of the last line",
              "file,printer,copies,option:KvHalfCut\n" + file + ",tape,2,ON");
}

void tst_batch::table()
{
    QFETCH(const QByteArray, table);
    BatchRun run(batch(table));
    QVERIFY2(run.end() == 0, qPrintable(run.errors()));
    QCOMPARE(run.answers().keys(), QList<int>{2});
    const int job = run.jobs().constFirst();
    QCOMPARE(mSite.choices(job),
             SampleChoices::replaced(SampleChoices::seen(u"tape"_s), u"KvHalfCut=ON"_s));
    QCOMPARE(mSite.job(job).value(u"copies"_s), u"2"_s);
}

void tst_batch::faultyRow_data()
{
    const TestTable<QByteArray, QString> table("row", "fault");
    const QByteArray file = mDocument.toUtf8();
    table.add("too few fields", file + ",1\n", u"there are 2 fields, and 3 columns in the head"_s);
    table.add("too many fields", file + ",1,,\n",
              u"there are 4 fields, and 3 columns in the head"_s);
    table.add("no file", ",1,\n", u"\"file\" has to be a text"_s);
    table.add("copies in words", file + ",two,\n", u"\"copies\" has to be a whole number"_s);
    table.add("unknown choice", file + ",1,MAYBE\n",
              u"KvHalfCut=MAYBE: the choices of KvHalfCut are: OFF, ON"_s);
    table.add("line break in quotes", "\"a\nb\",1,\n", u"a\nb: No such file or directory"_s);
    table.add("quotes and separator in quotes", "\"a,\"\"b\"\"\",1,\n",
              u"a,\"b\": No such file or directory"_s);
    table.add("stray quote", "a\"b,1,\n", u"a quote stands within a field; "_s);
    table.add("other encoding", "caf\xE9,1,\n", u"is not in UTF-8"_s);
    table.add("carriage return", "a,1,\rb,1,\n", u"there is a carriage return within the line"_s);
}

void tst_batch::faultyRow()
{
    QFETCH(const QByteArray, row);
    QFETCH(const QString, fault);
    const QByteArray whole = mDocument.toUtf8() + ",1,ON\n";
    const auto before = jobCount();
    BatchRun run(
        batch("file,copies,option:KvHalfCut\n" + whole + row + whole + "\"open,1,\n" + whole),
        {u"-d"_s, u"tape"_s});
    QCOMPARE(run.end(), 4);
    QCOMPARE(jobCount(), before + 2);
    const int next = 3 + int(row.count('\n'));
    QCOMPARE(run.answers().keys(), QList<int>({2, 3, next, next + 1}));
    const QString told = run.answers().value(3).value(u"error"_s).toString();
    QVERIFY2(told.contains(fault), qPrintable(told));
    QCOMPARE(run.answers().value(next + 1).value(u"error"_s).toString(),
             u"a quote is not closed"_s);
}

void tst_batch::faultyHead_data()
{
    const TestTable<QByteArray, QString> table("head", "fault");
    table.add("no file", "printer,copies",
              u"is neither a JSON object nor the head of a table with a column \"file\""_s);
    table.add("unknown column", "file,KvHalfCut", u"there is no column \"KvHalfCut\"; "_s);
    table.add("option without a keyword", "file,option:", u"there is no column \"option:\"; "_s);
    table.add("column twice", "file,copies,copies", u"there are two columns \"copies\""_s);
    table.add("line break", "\"fi\nle\"",
              u"is neither a JSON object nor the head of a table with a column \"file\""_s);
}

void tst_batch::faultyHead()
{
    QFETCH(const QByteArray, head);
    QFETCH(const QString, fault);
    const auto before = jobCount();
    BatchRun run(batch(head + '\n' + mDocument.toUtf8() + ",,\n"), {u"-d"_s, u"tape"_s});
    QCOMPARE(run.end(), 3);
    QVERIFY2(run.errors().contains(u"batch.jsonl: line 1: "_s + fault), qPrintable(run.errors()));
    QCOMPARE(jobCount(), before);
    QVERIFY(!QFile::exists(mJournal));
}

void tst_batch::continuedTable()
{
    const QByteArray row = mDocument.toUtf8() + ",ON\n";
    const QByteArray head = "file,option:KvHalfCut\n";
    const QByteArray faulty = "\"a\nb\",ON\n";
    BatchRun run(batch(head + row + faulty), {u"-d"_s, u"tape"_s});
    QCOMPARE(run.end(), 4);
    const auto before = jobCount();
    BatchRun next(batch(head + row + faulty + row),
                  {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"1"_s});
    QCOMPARE(next.end(), 4);
    QCOMPARE(next.answers().keys(), QList<int>({3, 5}));
    QCOMPARE(jobCount(), before + 1);
    // Another table with the same columns.
    BatchRun other(batch(head + mDocument.toUtf8() + ",OFF\n"),
                   {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"1"_s});
    QCOMPARE(other.end(), 3);
    QVERIFY2(other.errors().contains(u"is the journal of another batch"_s),
             qPrintable(other.errors()));
}

void tst_batch::linesFromAPipeAreAnsweredAtOnce()
{
    BatchRun run(u"-"_s);
    for (int line = 1; line <= 3; ++line) {
        run.process().write(batchLine(mDocument, {{u"printer"_s, u"label"_s}}));
        QVERIFY(QTest::qWaitFor([&] { return run.answers().contains(line); }, 30'000));
    }
    QCOMPARE(run.end(), 0);
    QCOMPARE(run.jobs().size(), 3);
}

void tst_batch::memoryDoesNotGrow()
{
    constexpr int lines = 10'000;
    constexpr int bytesOfLine = 400;
    // What AddressSanitizer keeps of freed memory does not count.
    BatchRun run(u"-"_s, {u"-d"_s, u"tape"_s},
                 {u"ASAN_OPTIONS=quarantine_size_mb=0:thread_local_quarantine_size_kb=0"_s});
    QVERIFY(run.process().waitForStarted());
    run.process().write(batchLine(mDocument));
    int written = 1;
    const auto peakAfter = [&](int count) {
        QByteArray faulty;
        for (int i = 0; i < count; ++i) {
            faulty += "{\"file\":\"" +
                      QByteArray::number(++written).rightJustified(bytesOfLine, '0') + "\"}\n";
        }
        run.process().write(faulty);
        return QTest::qWaitFor([&] { return run.answerCount() == written; }, 60'000)
                   ? peakKilobytes(run.process().processId())
                   : -1;
    };
    const int atFirst = peakAfter(lines / 10);
    const int inTheEnd = peakAfter(lines);
    QVERIFY(atFirst > 0 && inTheEnd > 0);
    QVERIFY2(inTheEnd - atFirst < lines * bytesOfLine / 1024 / 2,
             qPrintable(u"%1 KB after %2 KB"_s.arg(inTheEnd).arg(atFirst)));
    QCOMPARE(run.end(), 4);
}

void tst_batch::requestsAreFew()
{
    const SchedulerProxy proxy(mSite.scheduler().address());
    constexpr int lines = 5;
    BatchRun run(batch(batchLine(mDocument).repeated(lines)), {u"-d"_s, u"tape"_s}, {at(proxy)});
    QVERIFY2(run.end() == 0, qPrintable(run.errors()));
    constexpr int toKnowIfStopped = 1;
    QCOMPARE(proxy.requests(), toReadPrinter + 2 * lines + toKnowIfStopped);
}

void tst_batch::replacedPPD()
{
    const QString printer = u"replaced"_s;
    QVERIFY(addPrinter(printer, PrintingSite::ppdPath(u"tape"_s)));
    BatchRun run(u"-"_s, {u"-d"_s, printer});
    run.process().write(batchLine(mDocument));
    QVERIFY(QTest::qWaitFor([&] { return run.answers().contains(1); }, 30'000));
    QVERIFY(addPrinter(printer, PrintingSite::ppdPath(u"label"_s)));
    // For so long it is not asked for again.
    QTest::qWait(3100);
    run.process().write(batchLine(mDocument));
    QCOMPARE(run.end(), 0);
    QCOMPARE(run.jobs().size(), 2);
    QCOMPARE(mSite.choices(run.jobs().constFirst()), SampleChoices::seen(u"tape"_s));
    QCOMPARE(mSite.choices(run.jobs().constLast()), SampleChoices::seen(u"label"_s));
}

void tst_batch::warningsAreInTheAnswer()
{
    BatchRun run(
        batch(batchLine(mDocument, {{u"preset"_s, u"AHCMOffOffOffOff"_s},
                                    {u"paper"_s, u"HS12x100"_s},
                                    {u"options"_s, QJsonObject{{u"KvAutoTapeCut"_s, u"ON"_s}}}})),
        {u"-d"_s, u"follow"_s});
    QCOMPARE(run.end(), 0);
    const QString warning = run.answers().value(1).value(u"warnings"_s)[0].toString();
    QVERIFY2(warning.startsWith(u"Heat-shrink tube is loaded. "), qPrintable(warning));
    QVERIFY(!run.errors().contains(u"Heat-shrink"_s));
}

void tst_batch::stoppedPrinterIsToldOnce()
{
    BatchRun run(batch(batchLine(mDocument).repeated(3)), {u"-d"_s, u"tape"_s});
    QCOMPARE(run.end(), 0);
    QCOMPARE(run.jobs().size(), 3);
    QCOMPARE(run.errors(), u"kvprint: tape: the printer is stopped, and keeps its jobs\n"_s);
}

void tst_batch::refusingPrinterHoldsItsOwnLinesAlone()
{
    QVERIFY(mSite.scheduler().setAccepting(u"tape"_s, false, nullptr));
    const QByteArray tape = batchLine(mDocument, {{u"printer"_s, u"tape"_s}});
    const QByteArray label = batchLine(mDocument, {{u"printer"_s, u"label"_s}});
    BatchRun run(batch(tape.repeated(3) + label.repeated(3)));
    QVERIFY(QTest::qWaitFor([&] { return run.answers().size() == 3; }, 30'000));
    QCOMPARE(run.answers().keys(), QList<int>({4, 5, 6}));
    QVERIFY(mSite.scheduler().setAccepting(u"tape"_s, true, nullptr));
    QCOMPARE(run.end(), 0);
    QCOMPARE(run.jobs().size(), 6);
    QCOMPARE(run.errors().count(u"is not accepting jobs"_s), 1);
}

void tst_batch::linesOfARefusingPrinterFailInTheEnd()
{
    QVERIFY(mSite.scheduler().setAccepting(u"tape"_s, false, nullptr));
    const auto before = jobCount();
    // More than may wait.
    const QByteArray lines = batchLine(mDocument).repeated(5);
    BatchRun run(batch(lines), {u"-d"_s, u"tape"_s, u"--retry"_s, u"1"_s, u"--pending"_s, u"2"_s});
    QCOMPARE(run.end(), 4);
    QCOMPARE(run.answers().size(), 5);
    QVERIFY(run.answers().value(5).value(u"error"_s).toString().contains(u"not accepting jobs"_s));
    QVERIFY(mSite.scheduler().setAccepting(u"tape"_s, true, nullptr));
    QCOMPARE(jobCount(), before);
    BatchRun again(batch(lines), {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"1"_s});
    QCOMPARE(again.end(), 0);
    QCOMPARE(jobCount(), before + 5);
}

void tst_batch::unusableJournal_data()
{
    const TestTable<QByteArray, bool, QString> table("journal", "continues", "fault");
    const QByteArray head = "{\"batch\":\"b\",\"firstLine\":\"0\"}\n";
    table.add("of a former run", head, false, u": there is a journal already; "_s);
    table.add("missing", QByteArray(), true, u": No such file or directory"_s);
    table.add("of another batch", head, true,
              u": line 1: is the journal of another batch, which begins with another line"_s);
    table.add("no journal", "label.txt\n", true, u": line 1: is no journal of a batch"_s);
}

void tst_batch::unusableJournal()
{
    QFETCH(const QByteArray, journal);
    QFETCH(const bool, continues);
    QFETCH(const QString, fault);
    if (!journal.isNull()) {
        QVERIFY(!mSite.file(u"batch.jsonl.journal"_s, journal).isNull());
    }
    const auto before = jobCount();
    BatchRun run(batch(batchLine(mDocument)),
                 continues ? QStringList{u"--continue-from"_s, u"1"_s} : QStringList());
    QCOMPARE(run.end(), 3);
    QVERIFY2(run.errors().contains(mJournal + fault), qPrintable(run.errors()));
    QCOMPARE(jobCount(), before);
}

void tst_batch::journalThatCannotBeWritten()
{
    const auto before = jobCount();
    BatchRun run(batch(batchLine(mDocument).repeated(3)), {u"--journal"_s, u"/dev/full"_s});
    QCOMPARE(run.end(), 3);
    QVERIFY2(run.errors().contains(u"/dev/full: "_s), qPrintable(run.errors()));
    QCOMPARE(jobCount(), before);
    // One that another run writes.
    BatchRun first(u"-"_s, {u"-d"_s, u"tape"_s, u"--journal"_s, mJournal});
    first.process().write(batchLine(mDocument));
    QVERIFY(QTest::qWaitFor([&] { return first.answers().contains(1); }, 30'000));
    BatchRun second(batch(batchLine(mDocument).repeated(2)), {u"--continue-from"_s, u"1"_s});
    QCOMPARE(second.end(), 3);
    QVERIFY2(second.errors().contains(u": another process writes this journal"_s),
             qPrintable(second.errors()));
    QCOMPARE(first.end(), 0);
}

void tst_batch::recordThatDoesNotFit()
{
    BatchJournal journal(mJournal);
    QCOMPARE(journal.begin(batchLine(mDocument)), QString());
    QCOMPARE(journal.addBegun(1), QString());
    const QByteArray whole = this->journal();
    {
        const FileSizeLimit limit(rlim_t(whole.size()) + 5);
        QCOMPARE(journal.addSent(1, 7), mJournal + u": File too large"_s);
    }
    QCOMPARE(this->journal(), whole);
    QCOMPARE(journal.addBegun(2), QString());
    QVERIFY(this->journal().startsWith(whole + '{'));
}

void tst_batch::answersThatCannotBeWritten()
{
    const auto before = jobCount();
    const ProgramRun run = runInShell(u"exec '%1' --batch '%2' -d tape > /dev/full"_s.arg(
        QStringLiteral(KV_PRINT_PROGRAM), batch(batchLine(mDocument).repeated(50))));
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"kvprint: standard output cannot be written: No space left on device"_s));
    QCOMPARE(jobCount(), before + 1);
}

void tst_batch::continuedBatchPrintsTheRest()
{
    const QByteArray line = batchLine(mDocument);
    const QByteArray faulty = "faulty\n";
    BatchRun run(batch(line + faulty + line), {u"-d"_s, u"tape"_s});
    QCOMPARE(run.end(), 4);
    const auto before = jobCount();
    // What is behind may have been written meanwhile, and what was faulty may have been mended.
    const QString longer = batch(line.repeated(5));
    BatchRun from5(longer, {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"5"_s});
    QCOMPARE(from5.end(), 0);
    QCOMPARE(from5.answers().keys(), QList<int>{5});
    BatchRun from1(longer, {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"1"_s});
    QCOMPARE(from1.end(), 0);
    QCOMPARE(from1.answers().keys(), QList<int>({2, 4}));
    QCOMPARE(jobCount(), before + 3);
    BatchRun onceMore(longer, {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"1"_s});
    QCOMPARE(onceMore.end(), 0);
    QVERIFY(onceMore.answers().isEmpty());
    QCOMPARE(jobCount(), before + 3);
}

void tst_batch::cutJournal_data()
{
    const TestTable<int, int> table("records", "bytes");
    table.add("whole", 5, 0);
    table.add("in the last line's number", 4, 10);
    table.add("behind the record that a line is about to be sent", 4, 0);
    table.add("in that record", 3, 4);
    table.add("in the first line's number", 2, 2);
    table.add("in the batch's name", 0, 7);
    table.add("empty", 0, 0);
}

void tst_batch::cutJournal()
{
    QFETCH(const int, records);
    QFETCH(const int, bytes);
    const QByteArray line = batchLine(mDocument);
    {
        BatchRun run(batch(line.repeated(2)), {u"-d"_s, u"tape"_s});
        QCOMPARE(run.end(), 0);
    }
    const QList<QByteArray> written = journal().split('\n');
    QCOMPARE(written.size(), 6);
    QByteArray cut;
    for (int i = 0; i < records; ++i) {
        cut += written.at(i) + '\n';
    }
    cut += written.at(records).left(bytes);
    QVERIFY(!mSite.file(u"batch.jsonl.journal"_s, cut).isNull());
    const auto before = jobCount();
    BatchRun run(batch(line.repeated(2)), {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"1"_s});
    QVERIFY2(run.end() == 0, qPrintable(run.errors()));
    // A line that the journal does not know has never been sent.
    const int unknown = records >= 4 ? 0 : records >= 2 ? 1 : 2;
    QCOMPARE(jobCount(), before + unknown);
    for (const QByteArray &record : journal().trimmed().split('\n')) {
        QVERIFY2(QJsonDocument::fromJson(record).isObject(), journal().constData());
    }
}

void tst_batch::lostAnswer_data()
{
    const TestTable<int, bool, int> table("answered", "isKilled", "jobs");
    table.add("job without a document, program killed", toReadPrinter, true, 2);
    table.add("job with its document, program killed", toReadPrinter + 1, true, 1);
    table.add("job without a document, scheduler restarted", toReadPrinter, false, 2);
    table.add("job with its document, scheduler restarted", toReadPrinter + 1, false, 1);
}

void tst_batch::lostAnswer()
{
    QFETCH(const int, answered);
    QFETCH(const bool, isKilled);
    QFETCH(const int, jobs);
    const auto before = mSite.scheduler().jobIds();
    SchedulerProxy proxy(mSite.scheduler().address());
    proxy.silenceAfter(answered);
    const QString file = batch(batchLine(mDocument));
    BatchRun run(file, {u"-d"_s, u"tape"_s}, {at(proxy)});
    const auto hasArrived = [&] {
        const auto now = mSite.scheduler().jobIds();
        const bool isThere = now.size() == before.size() + 1;
        return isThere && (jobs == 2 || mSite.job(now.last()).value(u"job-k-octets"_s) == u"1"_s);
    };
    QVERIFY(QTest::qWaitFor(hasArrived, 30'000));
    int status = 0;
    if (isKilled) {
        run.kill();
        BatchRun next(file, {u"-d"_s, u"tape"_s, u"--continue-from"_s, u"1"_s});
        status = next.end();
    } else {
        proxy.silenceAfter(std::numeric_limits<int>::max());
        proxy.closeConnections();
        status = run.end();
    }
    QCOMPARE(status, 0);
    const auto after = mSite.scheduler().jobIds();
    QCOMPARE(after.size(), before.size() + jobs);
    if (jobs == 2) {
        QCOMPARE(mSite.job(after.at(after.size() - 2)).value(u"job-state"_s), u"canceled"_s);
    }
    QCOMPARE(mSite.job(after.last()).value(u"job-k-octets"_s), u"1"_s);
    QVERIFY2(journal().contains("\"job\":" + QByteArray::number(after.last())),
             journal().constData());
}

void tst_batch::schedulerThatBreaksOff()
{
    const auto before = jobCount();
    SchedulerProxy proxy(mSite.scheduler().address());
    // The second line's job is made on a connection that breaks off, and on later ones, too.
    proxy.breakOffAfter(toReadPrinter + 2);
    BatchRun run(batch(batchLine(mDocument).repeated(4)), {u"-d"_s, u"tape"_s}, {at(proxy)});
    QVERIFY(QTest::qWaitFor([&] { return run.errors().contains(u"breaks off"_s); }, 30'000));
    proxy.breakOffAfter(std::numeric_limits<int>::max());
    QVERIFY2(run.end() == 0, qPrintable(run.errors()));
    QCOMPARE(jobCount(), before + 4);
}

KV_TEST(tst_batch)
#include "tst_batch.moc"
