// SPDX-License-Identifier: Apache-2.0
#include "PrintingTest.h"
#include "ProgramRun.h"

#include <QProcess>
#include <QTest>

#include <cups/cups.h>

/// Printing that waits for the end of the job.
class tst_wait : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void printed();
    void cancelled_data();
    void cancelled();
    void stopped();

private: // NOLINT(readability-redundant-access-specifiers)
    /// Starts kvprint at a stopped printer and waits until its job is there: its number, 0 when it
    /// is not.
    int start(QProcess &process, const QString &document);
};

int tst_wait::start(QProcess &process, const QString &document)
{
    const auto before = mSite.scheduler().jobIds();
    process.start(QStringLiteral(KV_PRINT_PROGRAM), atPrinter(u"tape"_s, {u"--wait"_s, document}));
    const bool isTold =
        QTest::qWaitFor([&process] { return process.bytesAvailable() > 0; }, 30'000);
    const auto after = mSite.scheduler().jobIds();
    return isTold && after.size() == before.size() + 1 ? after.last() : 0;
}

void tst_wait::printed()
{
    QProcess process;
    const int job = start(process, mSite.document());
    QVERIFY(job > 0);
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardOutput()),
             u"request id is tape-%1 (1 file(s))\n"_s.arg(job));
    QVERIFY(mSite.scheduler().setPaused(u"tape"_s, false, nullptr));
    QVERIFY(process.waitForFinished());
    QVERIFY(mSite.scheduler().setPaused(u"tape"_s, true, nullptr));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(mSite.job(job).value(u"job-state"_s), u"completed"_s);
    QCOMPARE(QString::fromLocal8Bit(process.readAllStandardError()),
             u"kvprint: tape-%1 waits: the printer is stopped\n"_s.arg(job));
}

void tst_wait::cancelled_data()
{
    QTest::addColumn<bool>("isPurged");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");
    QTest::newRow("cancelled") << false << 5 << u"tape-%1: canceled"_s;
    QTest::newRow("purged") << true << 3 << u"does not know job %1 any more"_s;
}

void tst_wait::cancelled()
{
    QFETCH(const bool, isPurged);
    QProcess process;
    const int job = start(process, mSite.document());
    QVERIFY(job > 0);
    QCOMPARE(cupsCancelJob2(CUPS_HTTP_DEFAULT, "tape", job, isPurged ? 1 : 0), IPP_STATUS_OK);
    QVERIFY(process.waitForFinished());
    QTEST(process.exitCode(), "status");
    QFETCH(const QString, error);
    const QString errors = QString::fromLocal8Bit(process.readAllStandardError());
    QVERIFY2(errors.contains(error.arg(job)), qPrintable(errors));
}

void tst_wait::stopped()
{
    QVERIFY(addPrinter(u"broken"_s, mSite.file(u"broken.ppd"_s, [] {
        QFile ppd(PrintingSite::ppdPath(u"tape"_s));
        return ppd.open(QIODevice::ReadOnly)
                   ? ppd.readAll() + "*cupsFilter2: \"text/plain application/x-none 0 false\"\n"
                   : QByteArray();
    }())));
    const ProgramRun run = runKvprint(atPrinter(u"broken"_s, {u"--wait"_s, mSite.document()}));
    QCOMPARE(run.status, 5);
    QVERIFY(run.tells(u": processing-stopped"_s));
}

KV_TEST(tst_wait)
#include "tst_wait.moc"
