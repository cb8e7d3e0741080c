// SPDX-License-Identifier: Apache-2.0
#include "kvprint/JobWait.h"

#include "cups/GrowingPauses.h"
#include "cups/PrintQueue.h"
#include "kvprint/StandardOutput.h"
#include "printcore/ProblemLine.h"

#include <algorithm>
#include <thread>

#include <unistd.h>

namespace {
using namespace std::chrono_literals;

/// How long to wait between two questions: at first, and at most.
constexpr std::chrono::milliseconds firstPause = 100ms;
constexpr std::chrono::milliseconds lastPause = 1s;

QString idOf(const SchedulerJob &job)
{
    return QStringLiteral("%1-%2").arg(job.queue).arg(job.id);
}

QString stateOf(const SchedulerJob &job)
{
    const QString explanation = job.explanation();
    QString text = QStringLiteral("%1: %2").arg(idOf(job), job.stateName());
    if (!explanation.isEmpty()) {
        text += QStringLiteral(" (%1)").arg(explanation);
    }
    return text;
}
} // namespace

JobWait::JobWait(const CommandLine &commandLine)
    : mCommandLine(commandLine)
{
}

ExitStatus JobWait::run(int job)
{
    auto now = read(job);
    if (now) {
        const QString line = QStringLiteral("request id is %1 (%2 file(s))\n")
                                 .arg(idOf(*now))
                                 .arg(mCommandLine.files.size());
        mReporter.report(writeToStandardOutput(line.toLocal8Bit()));
    }
    auto pause = firstPause;
    while (now && !now->hasEnded() && now->state != IPP_JSTATE_STOPPED) {
        tell(*now);
        std::this_thread::sleep_for(pause);
        pause = std::min(2 * pause, lastPause);
        now = read(job);
    }
    if (!now) {
        return ExitStatus::NotPrinted;
    }
    if (!now->isPrinted()) {
        mReporter.report(stateOf(*now));
        return ExitStatus::NotCompleted;
    }
    tell(*now);
    return ExitStatus::Printed;
}

std::optional<SchedulerJob> JobWait::read(int job)
{
    GrowingPauses pauses{std::chrono::seconds(mCommandLine.retry)};
    for (;;) {
        QString error;
        SchedulerConnection scheduler{std::chrono::seconds(mCommandLine.timeout)};
        auto now = SchedulerJob::read(scheduler, job, &error);
        if (now && now->state == IPP_JSTATE_PENDING &&
            PrintQueue::isStopped(scheduler, now->queue)) {
            mReporter.report(QStringLiteral("%1 waits: the printer is stopped").arg(idOf(*now)));
        }
        if (now) {
            return now;
        }
        if (error.isNull()) {
            mReporter.report(
                QStringLiteral("the print scheduler does not know job %1 any more").arg(job));
            return std::nullopt;
        }
        if (!pauses.wait()) {
            mReporter.report(error);
            return std::nullopt;
        }
    }
}

void JobWait::tell(const SchedulerJob &job)
{
    if (const QString state = stateOf(job); isatty(STDERR_FILENO) && state != mTold) {
        mTold = state;
        tellProblem(state);
    }
}
