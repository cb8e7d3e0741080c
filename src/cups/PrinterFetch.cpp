// SPDX-License-Identifier: Apache-2.0
#include "cups/PrinterFetch.h"

#include "cups/SchedulerConnection.h"

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

/// What the thread and its owner have in common; the last of them frees it.
struct PrinterFetch::Shared
{
    std::mutex mutex;
    std::condition_variable isAnswered;
    std::optional<PrinterRecord> record;
    /// Null when nobody is interested any more.
    PrinterFetch *owner = nullptr;
    /// libcups reads it, too.
    int isCancelled = 0;

    /// Has the owner tell the record when it is back in its event loop.
    void tellOwner() const
    {
        if (owner) {
            const auto tell = [owner = owner] {
                if (const auto answer = owner->take()) {
                    Q_EMIT owner->answered(*answer);
                }
            };
            QMetaObject::invokeMethod(owner, tell, Qt::QueuedConnection);
        }
    }
};

PrinterFetch::PrinterFetch(Question question, QObject *parent)
    : QObject(parent)
    , mShared(std::make_shared<Shared>())
{
    mShared->owner = this;
    const auto ask = [shared = mShared, question = std::move(question),
                      address = SchedulerAddress::ofThisThread()] {
        address.use();
        SchedulerConnection scheduler(SchedulerConnection::defaultLimit, &shared->isCancelled);
        PrinterRecord record = question(scheduler);
        const std::scoped_lock lock(shared->mutex);
        shared->record = std::move(record);
        shared->isAnswered.notify_all();
        shared->tellOwner();
    };
    try {
        std::thread(ask).detach();
    } catch (const std::system_error &fault) {
        PrinterRecord record;
        record.error = QStringLiteral("the printer cannot be asked about: %1")
                           .arg(QString::fromLocal8Bit(fault.what()));
        mShared->record = std::move(record);
        mShared->tellOwner();
    }
}

PrinterFetch::~PrinterFetch()
{
    const std::scoped_lock lock(mShared->mutex);
    mShared->owner = nullptr;
    std::atomic_ref(mShared->isCancelled) = 1;
}

std::optional<PrinterRecord> PrinterFetch::waitFor(std::chrono::milliseconds time)
{
    {
        std::unique_lock lock(mShared->mutex);
        mShared->isAnswered.wait_for(lock, time, [this] { return mShared->record.has_value(); });
    }
    return take();
}

std::optional<PrinterRecord> PrinterFetch::take()
{
    const std::scoped_lock lock(mShared->mutex);
    return std::exchange(mShared->record, std::nullopt);
}

#include "moc_PrinterFetch.cpp"
