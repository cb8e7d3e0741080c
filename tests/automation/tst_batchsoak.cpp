// SPDX-License-Identifier: Apache-2.0
#include "BatchRun.h"
#include "JobOracle.h"
#include "PrintingTest.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

namespace {
constexpr int defaultJobs = 150;
constexpr int defaultKills = 3;
constexpr int waitLimitMs = 120'000;

int fromEnvironment(const char *variable, int otherwise)
{
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : otherwise;
}
} // namespace

/**
 * A batch made up by chance, over all sample printers and papers, while kvprint and the scheduler
 * are ended again and again: each line that the model of the panel's rules allows has exactly one
 * job, with the choices that the model predicts.
 *
 * KV_SOAK_JOBS, KV_SOAK_KILLS (of each) and KV_SOAK_SEED change what is done.
 */
class tst_batchsoak : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyLineHasOneJob();

private: // NOLINT(readability-redundant-access-specifiers)
    struct Line
    {
        QString printer;
        QString paper;
        /// What its job carries; nothing for a line that is refused.
        std::optional<QStringList> choices;
    };

    template <typename Value>
    Value oneOf(const QList<Value> &values)
    {
        return values.at(mRandom.bounded(values.size()));
    }
    bool chance(int percent) { return mRandom.bounded(100) < percent; }
    JobWish wishFor(const model::Printer &printer);
    QByteArray makeLine();
    bool waitForAnswers(BatchRun &run, int count);
    /// Runs the batch, killed and restarted as often as that; the last exit status.
    int printAll(const QString &batch, int kills);

    QRandomGenerator mRandom;
    QMap<QString, JobOracle> mOracles;
    QString mDocument;
    QList<Line> mLines;
};

void tst_batchsoak::initTestCase()
{
    PrintingTest::initTestCase();
    const quint32 seed = quint32(
        fromEnvironment("KV_SOAK_SEED", int(QRandomGenerator::global()->bounded(1'000'000))));
    qInfo("KV_SOAK_SEED=%u", seed);
    mRandom.seed(seed);
    mDocument = mSite.document();
    for (const QString &printer : PrintingSite::printers()) {
        mOracles.insert(printer, JobOracle(PrintingSite::ppdPath(printer)));
    }
}

JobWish tst_batchsoak::wishFor(const model::Printer &printer)
{
    static const QStringList presets{
        u"EveryEndMirrorOnOffOff"_s, u"EveryEndMirrorOffOnOff"_s, u"AHCMOffOnOffOff"_s,
        u"AHCMOnOffOnOff"_s,         u"AHCMOffOffOffOff"_s,       u"SPMROnOff"_s,
        u"CTMROnOffOff"_s,
    };
    JobWish wish;
    wish.paper = oneOf(printer.sizes).name;
    wish.preset = chance(30) ? oneOf(presets) : QString();
    for (const model::Option option : model::everyOption) {
        if (printer.option(option) && chance(25)) {
            wish.options.insert(model::namesOf(option).keyword,
                                oneOf(printer.option(option)->choices).keyword);
        }
    }
    return wish;
}

QByteArray tst_batchsoak::makeLine()
{
    Line line;
    line.printer = oneOf(PrintingSite::printers());
    const JobOracle &oracle = *mOracles.find(line.printer);
    const JobWish wish = wishFor(oracle.printer());
    line.paper = wish.paper;
    line.choices = oracle.choices(wish);
    const bool hasPanel = line.choices != QStringList();
    QJsonObject members{{u"printer"_s, line.printer}, {u"paper"_s, line.paper}};
    if (!wish.preset.isNull() && hasPanel) {
        members.insert(u"preset"_s, wish.preset);
    }
    QJsonObject options;
    for (auto it = wish.options.begin(); it != wish.options.end(); ++it) {
        options.insert(it.key(), it.value());
    }
    members.insert(u"options"_s, options);
    mLines.append(line);
    return batchLine(mDocument, members);
}

bool tst_batchsoak::waitForAnswers(BatchRun &run, int count)
{
    return QTest::qWaitFor(
        [&] { return run.answerCount() >= count || run.process().state() == QProcess::NotRunning; },
        waitLimitMs);
}

int tst_batchsoak::printAll(const QString &batch, int kills)
{
    const int step = std::max(1, int(mLines.size()) / (2 * kills + 1));
    QStringList arguments{u"--retry"_s, u"60"_s};
    for (int done = 0; done < kills; ++done) {
        BatchRun run(batch, arguments);
        arguments = QStringList{u"--retry"_s, u"60"_s, u"--continue-from"_s, u"1"_s};
        QString error;
        if (!waitForAnswers(run, 1 + mRandom.bounded(step)) || !mSite.scheduler().restart(&error) ||
            !waitForAnswers(run, run.answerCount() + 1 + mRandom.bounded(step))) {
            qWarning("%s %s", qPrintable(error), qPrintable(run.errors()));
            return -1;
        }
        run.kill();
    }
    BatchRun last(batch, arguments);
    return last.end(waitLimitMs * 10);
}

void tst_batchsoak::everyLineHasOneJob()
{
    const int lines = fromEnvironment("KV_SOAK_JOBS", defaultJobs);
    const int kills = fromEnvironment("KV_SOAK_KILLS", defaultKills);
    QByteArrayList batch;
    for (int i = 0; i < lines; ++i) {
        batch.append(makeLine());
    }
    QElapsedTimer time;
    time.start();
    const int status = printAll(mSite.file(u"batch.jsonl"_s, batch.join()), kills);
    const auto seconds = double(time.elapsed()) / 1000;
    QVERIFY2(status == 0 || status == 4, qPrintable(QString::number(status)));

    QMap<int, int> jobsOfLines;
    int unprinted = 0;
    const QList<int> jobs = mSite.scheduler().jobIds();
    for (const int id : jobs) {
        const auto job = mSite.job(id);
        const int number = job.value(u"job-name"_s).section(u' ', 0, 0).section(u'-', -1).toInt();
        QVERIFY(number >= 1 && number <= lines);
        // Neither is printed.
        if (job.value(u"job-k-octets"_s) == u"0"_s || job.value(u"job-state"_s) == u"canceled"_s) {
            ++unprinted;
            continue;
        }
        const Line &line = mLines.at(number - 1);
        const QByteArray about = "line " + QByteArray::number(number) + ": " + batch.at(number - 1);
        QVERIFY2(line.choices.has_value(), about.constData());
        QVERIFY2(++jobsOfLines[number] == 1, about.constData());
        QVERIFY2(job.value(u"job-printer-uri"_s).endsWith(u'/' + line.printer), about.constData());
        QVERIFY2(job.value(u"media"_s) == line.paper, about.constData());
        const QStringList choices = mSite.choices(id);
        QVERIFY2(choices == *line.choices, (about + "\n has " + choices.join(u' ').toUtf8() +
                                            "\n not " + line.choices->join(u' ').toUtf8())
                                               .constData());
    }
    const auto allowed =
        std::ranges::count_if(mLines, [](const Line &line) { return line.choices.has_value(); });
    QCOMPARE(jobsOfLines.size(), allowed);
    qInfo("%d lines, %d jobs, %d lines refused, %d jobs more without a document; kvprint killed "
          "%d times, the scheduler started again %d times; %.1f s",
          lines, int(allowed), lines - int(allowed), unprinted, kills, kills, seconds);
}

KV_TEST(tst_batchsoak)
#include "tst_batchsoak.moc"
