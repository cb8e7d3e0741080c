// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/GrowingPauses.h"
#include "cups/JobOptions.h"
#include "cups/SchedulerConnection.h"

#include <QString>
#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

class BatchReport;

/**
 * Sends a batch's jobs for one printer in the order of their lines, in a thread and on a connection
 * of its own.
 *
 * What fails and may work later is tried again with growing pauses. A job of which nobody knows
 * whether it has arrived is looked up by its name first, so that none is printed twice.
 */
class BatchPrinter
{
public:
    struct Limits
    {
        /// How long the scheduler may be silent.
        SchedulerConnection::Milliseconds silence = SchedulerConnection::defaultLimit;
        /// How long the printer's jobs are tried again.
        GrowingPauses::Milliseconds retry{};
        /// How many jobs may wait to be sent.
        std::size_t pending = 0;
    };

    struct Job
    {
        qint64 line = 0;
        /// Unique to the line.
        QString name;
        /// Whether an earlier run may have sent it.
        bool mayBeThere = false;
        QString file;
        JobOptions options;
        /// What the panels have said of it.
        QStringList warnings;
    };

    /// @param report must outlive this object.
    BatchPrinter(QString printer, const Limits &limits, BatchReport &report);
    /// Waits until everything has been sent, or has failed.
    ~BatchPrinter();
    BatchPrinter(const BatchPrinter &) = delete;
    BatchPrinter &operator=(const BatchPrinter &) = delete;

    /// Adds a job behind the others; waits as long as too many are pending.
    void add(Job job);

private:
    void run();
    std::optional<Job> next();
    void send(const Job &job);
    /// One attempt; whether the job has been answered. @p error is set when it has not.
    bool trySending(const Job &job, bool mayBeThere, QString *error);
    /// Asks from time to time whether the printer is stopped, and tells it once.
    void tellIfStopped();
    /// The number of the job that is there already, 0 when there is none with a document;
    /// nothing, with the reason in the error, when the scheduler does not tell.
    std::optional<int> findSent(const Job &job, QString *error);

    const QString mPrinter;
    const Limits mLimits;
    BatchReport &mReport;
    std::mutex mMutex;
    std::condition_variable mHasChanged;
    std::deque<Job> mJobs;
    bool mIsEnding = false;
    /// Null before the first request and after a failure.
    std::unique_ptr<SchedulerConnection> mScheduler;
    /// When the printer's state was asked for last; nothing before the first time.
    std::optional<std::chrono::steady_clock::time_point> mStateAsked;
    GrowingPauses mPauses;
    std::thread mThread;
};
