// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchPrinter.h"

#include "cups/JobSubmission.h"
#include "cups/PrintQueue.h"
#include "cups/SchedulerJob.h"
#include "kvprint/BatchReport.h"

#include <QFileInfo>

namespace {
/// How long a printer is taken to be in the same state.
constexpr std::chrono::seconds betweenStates(10);
} // namespace

BatchPrinter::BatchPrinter(QString printer, const Limits &limits, BatchReport &report)
    : mPrinter(std::move(printer))
    , mLimits(limits)
    , mReport(report)
    , mPauses(limits.retry)
    , mThread([this, address = SchedulerAddress::ofThisThread()] {
        address.use();
        run();
    })
{
}

BatchPrinter::~BatchPrinter()
{
    {
        const std::scoped_lock lock(mMutex);
        mIsEnding = true;
    }
    mHasChanged.notify_all();
    mThread.join();
}

void BatchPrinter::add(Job job)
{
    {
        std::unique_lock lock(mMutex);
        mHasChanged.wait(lock, [this] { return mJobs.size() < mLimits.pending; });
        mJobs.push_back(std::move(job));
    }
    mHasChanged.notify_all();
}

std::optional<BatchPrinter::Job> BatchPrinter::next()
{
    std::optional<Job> job;
    {
        std::unique_lock lock(mMutex);
        mHasChanged.wait(lock, [this] { return mIsEnding || !mJobs.empty(); });
        if (!mJobs.empty()) {
            job = std::move(mJobs.front());
            mJobs.pop_front();
        }
    }
    mHasChanged.notify_all();
    return job;
}

void BatchPrinter::run()
{
    while (const auto job = next()) {
        if (mReport.begin(job->line)) {
            send(*job);
        }
    }
}

void BatchPrinter::send(const Job &job)
{
    QString error;
    bool mayBeThere = job.mayBeThere;
    while (!trySending(job, mayBeThere, &error)) {
        mayBeThere = true;
        mScheduler.reset();
        mReport.tell(error);
        if (mReport.isBroken() || !mPauses.wait()) {
            mReport.failed(job.line, error);
            return;
        }
    }
}

bool BatchPrinter::trySending(const Job &job, bool mayBeThere, QString *error)
{
    if (!mScheduler) {
        mScheduler = std::make_unique<SchedulerConnection>(mLimits.silence);
    }
    const auto found = mayBeThere ? findSent(job, error) : std::optional(0);
    if (!found) {
        return false;
    }
    JobSubmission::Receipt receipt;
    receipt.job = *found;
    if (receipt.job == 0) {
        const QString title = job.name + QLatin1Char(' ') + QFileInfo(job.file).fileName();
        receipt = JobSubmission::send(*mScheduler, mPrinter, {job.file}, title, job.options);
    }
    *error = receipt.error;
    if (receipt.mayWorkLater) {
        return false;
    }
    mPauses.reset();
    if (receipt.job == 0) {
        if (QString reason; receipt.unfinished != 0) {
            SchedulerJob::cancel(*mScheduler, receipt.unfinished, &reason);
        }
        mReport.failed(job.line, receipt.error);
        return true;
    }
    mReport.sent(job.line, mPrinter, receipt.job, job.warnings);
    tellIfStopped();
    return true;
}

void BatchPrinter::tellIfStopped()
{
    const auto now = std::chrono::steady_clock::now();
    if (mStateAsked && now - *mStateAsked < betweenStates) {
        return;
    }
    mStateAsked = now;
    if (PrintQueue::isStopped(*mScheduler, PrintQueue::queueOf(mPrinter))) {
        mReport.tell(
            QStringLiteral("%1: the printer is stopped, and keeps its jobs").arg(mPrinter));
    }
}

std::optional<int> BatchPrinter::findSent(const Job &job, QString *error)
{
    const auto jobs =
        SchedulerJob::named(*mScheduler, PrintQueue::queueOf(mPrinter), job.name, error);
    if (!jobs) {
        return std::nullopt;
    }
    for (const SchedulerJob &there : *jobs) {
        // A document that was still on its way may reach a job that has been cancelled already.
        if (there.hasEnded() && !there.isPrinted()) {
            continue;
        }
        if (there.kilobytes > 0) {
            return there.id;
        }
        if (!SchedulerJob::cancel(*mScheduler, there.id, error)) {
            return std::nullopt;
        }
    }
    return 0;
}
