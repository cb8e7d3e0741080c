// SPDX-License-Identifier: Apache-2.0
#include "bench/JobCosts.h"

#include "bench/ChildProcesses.h"
#include "tests/host/SchedulerProxy.h"

#include <QFile>
#include <QProcess>

#include <chrono>
#include <iomanip>
#include <ostream>
#include <stdexcept>

namespace {
constexpr int measuredJobs = 1000;
/// For the requests: enough that those for a batch's printer do not count.
constexpr int countedJobs = 100;
constexpr int runLimitMs = 600'000;

void check(bool isRight, const QString &fault)
{
    if (!isRight) {
        throw std::runtime_error(fault.toStdString());
    }
}

void runToEnd(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(program, arguments);
    const bool hasEnded = process.waitForFinished(runLimitMs);
    check(hasEnded && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0,
          program + QStringLiteral(" failed: ") +
              QString::fromLocal8Bit(process.readAllStandardError()));
}
} // namespace

/// A way to print.
struct JobCosts::Way
{
    const char *name;
    const char *program;
    QStringList arguments;
    /// Whether one process prints all jobs.
    bool isBatch;
};

const JobCosts::Way JobCosts::ways[] = {
    {"lp",
     "lp",
     {QStringLiteral("-d"), QStringLiteral("tape"), QStringLiteral("-o"),
      QStringLiteral("KvHalfCut=ON")},
     false},
    {"kvprint --no-dialog",
     KV_BUILD_FOLDER "/bin/kvprint",
     {QStringLiteral("--no-dialog"), QStringLiteral("-d"), QStringLiteral("tape"),
      QStringLiteral("-o"), QStringLiteral("KvHalfCut=ON")},
     false},
    {"kvprint --batch", KV_BUILD_FOLDER "/bin/kvprint", {QStringLiteral("--batch")}, true},
};

JobCosts::JobCosts()
{
    QString error;
    mScheduler = PrivateScheduler::start(&error);
    check(mScheduler != nullptr, error);
    const QString tape = QStringLiteral("tape");
    check(mScheduler->addPrinter(tape, QStringLiteral(KV_PPD_DIR "/korvane-tape.ppd"), &error) &&
              mScheduler->setPaused(tape, true, &error),
          error);
    mLabel = write(QStringLiteral("label.txt"), "A line of text\n");
}

QString JobCosts::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(mFolder.filePath(name));
    check(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), file.errorString());
    return file.fileName();
}

JobCosts::Costs JobCosts::costsOf(const Way &way, int jobs) const
{
    const QByteArray line = R"({"file":")" + mLabel.toUtf8() +
                            R"(","printer":"tape","options":{"KvHalfCut":"ON"}})"
                            "\n";
    const QString batch = write(QStringLiteral("batch.jsonl"), line.repeated(jobs));
    QFile::remove(batch + QStringLiteral(".journal"));
    const double before = processorSecondsOfChildren();
    const auto start = std::chrono::steady_clock::now();
    const int runs = way.isBatch ? 1 : jobs;
    for (int run = 0; run < runs; ++run) {
        runToEnd(QString::fromUtf8(way.program),
                 way.arguments + QStringList(way.isBatch ? batch : mLabel));
    }
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    return {time.count(), processorSecondsOfChildren() - before};
}

double JobCosts::requestsOf(const Way &way, int jobs) const
{
    const QByteArray address = mScheduler->address();
    const SchedulerProxy proxy(address);
    qputenv("CUPS_SERVER", proxy.address());
    costsOf(way, jobs);
    qputenv("CUPS_SERVER", address);
    return double(proxy.requests()) / jobs;
}

void JobCosts::print(std::ostream &stream) const
{
    stream << "\n" << measuredJobs << " labels, each a job\n" << std::fixed;
    stream << "  " << std::left << std::setw(24) << "" << std::right << std::setw(12) << "time"
           << std::setw(12) << "of lp's" << std::setw(16) << "processor" << std::setw(16)
           << "requests a job" << "\n";
    double secondsOfLp = 0.0;
    for (const Way &way : ways) {
        const Costs costs = costsOf(way, measuredJobs);
        secondsOfLp = secondsOfLp > 0.0 ? secondsOfLp : costs.seconds;
        stream << "  " << std::left << std::setw(24) << way.name << std::right
               << std::setprecision(2) << std::setw(10) << costs.seconds << " s" << std::setw(12)
               << costs.seconds / secondsOfLp << std::setw(11)
               << costs.processorSeconds / measuredJobs * 1e3 << " ms/job" << std::setw(14)
               << requestsOf(way, way.isBatch ? countedJobs : 1) << "\n";
    }
}
