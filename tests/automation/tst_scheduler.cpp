// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"
#include "SchedulerProxy.h"

#include <QDir>
#include <QFileInfo>
#include <QTest>

/// What kvprint without a dialog asks the scheduler, and what becomes of a job when the scheduler
/// answers no more.
class tst_scheduler : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void requestsAreFew_data();
    void requestsAreFew();
    void printerOfTheNetworkGetsAQueue();
    void ppdForKnownUsersAlone();
    void halfAPPDIsNoOptions_data();
    void halfAPPDIsNoOptions();
    void brokenConnectionIsNoMissingPrinter_data();
    void brokenConnectionIsNoMissingPrinter();
    void silenceLeavesNoHalfJob_data();
    void silenceLeavesNoHalfJob();

private: // NOLINT(readability-redundant-access-specifiers)
    QString mDocument;
    QString mOther;
};

namespace {
/// What the scheduler is asked for a printer: whether it is there, its attributes, its PPD.
constexpr int toRead = 3;
/// What it is asked when the user names no printer, or an instance: the default one, and all of
/// them.
constexpr int toChoose = 2;

ProgramRun runAt(const SchedulerProxy &proxy, const QStringList &arguments)
{
    return runKvprint(arguments, {{}, {u"CUPS_SERVER="_s + QString::fromLatin1(proxy.address())}});
}
} // namespace

void tst_scheduler::initTestCase()
{
    PrintingTest::initTestCase();
    mDocument = mSite.document();
    mOther = mSite.document(u"other.txt"_s);
    QVERIFY(addPrinter(u"bare"_s, {}));
}

void tst_scheduler::requestsAreFew_data()
{
    const TestTable<QStringList, int> table("arguments", "requests");
    const auto printers = int(PrintingSite::printers().size()) + 1;
    table.add("job", atPrinter(u"tape"_s, {mDocument}), toRead + 2);
    table.add("job at the default printer", {u"--no-dialog"_s, mDocument}, toChoose + toRead + 2);
    table.add("job of two files", atPrinter(u"tape"_s, {mDocument, mOther}), toRead + 3);
    table.add("job at a printer without a PPD", atPrinter(u"bare"_s, {mDocument}), toRead + 2);
    table.add("dry run", {u"--dry-run"_s, mDocument}, toChoose + toRead);
    table.add("a printer", {u"--list"_s, u"-d"_s, u"tape"_s}, toChoose + toRead);
    table.add("all printers", {u"--list"_s}, toChoose + printers * toRead);
}

void tst_scheduler::requestsAreFew()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const int, requests);
    const SchedulerProxy proxy(mSite.scheduler().address());
    const ProgramRun run = runAt(proxy, arguments);
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QCOMPARE(proxy.requests(), requests);
}

/// There is no such printer here, so the queue is not found when the job is made, and is there when
/// libcups looks for it.
void tst_scheduler::printerOfTheNetworkGetsAQueue()
{
    const int jobs = int(mSite.scheduler().jobIds().size());
    SchedulerProxy proxy(mSite.scheduler().address());
    constexpr int toMakeQueue = 2;
    proxy.misnamePrinterIn(toRead + 1);
    const ProgramRun run = runAt(proxy, atPrinter(u"tape"_s, {mDocument}));
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QCOMPARE(proxy.requests(), toRead + 1 + toMakeQueue + 2);
    QCOMPARE(mSite.scheduler().jobIds().size(), jobs + 1);
}

void tst_scheduler::ppdForKnownUsersAlone()
{
    SchedulerProxy proxy(mSite.scheduler().address());
    proxy.askWhoWantsPPDs();
    const QString folder = QFileInfo(mSite.path(u"certs"_s)).path();
    QVERIFY(QDir(folder).mkpath(u"certs"_s));
    QVERIFY(!mSite.file(u"certs/0"_s, "local").isNull());
    const ProgramRun run = runKvprint(
        {u"--dry-run"_s, u"-d"_s, u"tape"_s, mDocument},
        {{},
         {u"CUPS_STATEDIR="_s + folder, u"CUPS_SERVER="_s + QString::fromLatin1(proxy.address())}});
    QVERIFY2(run.status == 0, qPrintable(run.errors));
    QVERIFY2(run.output.contains(u"KvHalfCut="_s), qPrintable(run.output));
    QCOMPARE(proxy.requests(), toRead + 1);
}

void tst_scheduler::halfAPPDIsNoOptions_data()
{
    const TestTable<QStringList> table("arguments");
    table.add("dry run", {u"--dry-run"_s, u"-d"_s, u"tape"_s, mDocument});
    table.add("list", {u"--list"_s});
}

void tst_scheduler::halfAPPDIsNoOptions()
{
    QFETCH(const QStringList, arguments);
    SchedulerProxy proxy(mSite.scheduler().address());
    proxy.cutPPDsAfter(1000);
    const ProgramRun run = runAt(proxy, arguments);
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"PPD of tape: the scheduler's answer breaks off"_s));
}

void tst_scheduler::brokenConnectionIsNoMissingPrinter_data()
{
    QTest::addColumn<int>("answered");
    for (int answered = 0; answered < toRead; ++answered) {
        QTest::addRow("behind answer %d", answered) << answered;
    }
}

void tst_scheduler::brokenConnectionIsNoMissingPrinter()
{
    QFETCH(const int, answered);
    SchedulerProxy proxy(mSite.scheduler().address());
    proxy.breakOffAfter(answered);
    const ProgramRun run = runAt(proxy, {u"--dry-run"_s, u"-d"_s, u"tape"_s, mDocument});
    QCOMPARE(run.status, 3);
    QVERIFY(run.tells(u"breaks off"_s));
}

void tst_scheduler::silenceLeavesNoHalfJob_data()
{
    const TestTable<int, QStringList> table("answered", "states");
    for (int answered = 0; answered < toRead; ++answered) {
        QTest::addRow("before there is a job, behind answer %d", answered)
            << answered << QStringList();
    }
    // Without a document there is nothing to print.
    table.add("the job's number is not told", toRead, {u"pending-held"_s});
    table.add("behind the first file", toRead + 1, {u"canceled"_s});
    table.add("behind the last file", toRead + 2, {u"canceled"_s, u"completed"_s});
}

void tst_scheduler::silenceLeavesNoHalfJob()
{
    QFETCH(const int, answered);
    QFETCH(const QStringList, states);
    const QList<int> before = mSite.scheduler().jobIds();
    SchedulerProxy proxy(mSite.scheduler().address());
    proxy.silenceAfter(answered);
    const ProgramRun run =
        runAt(proxy, atPrinter(u"tape"_s, {u"--timeout"_s, u"1"_s, mDocument, mOther}));
    QCOMPARE(run.status, 3);
    QVERIFY2(run.errors.endsWith(u"the print scheduler at 127.0.0.1 does not answer\n"),
             qPrintable(run.errors));
    const QList<int> after = mSite.scheduler().jobIds();
    QCOMPARE(after.size(), before.size() + (states.isEmpty() ? 0 : 1));
    if (!states.isEmpty()) {
        const auto state = [this, &after] {
            return mSite.job(after.last()).value(u"job-state"_s);
        };
        QVERIFY2(QTest::qWaitFor([&] { return states.contains(state()); }), qPrintable(state()));
    }
}

KV_TEST(tst_scheduler)
#include "tst_scheduler.moc"
