// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/PrinterRecord.h"

#include <QObject>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/**
 * Asks the scheduler for a printer in a separate thread, so that nobody has to wait for it.
 *
 * Deleting this object cancels the request: no other connection is opened for it, and the thread
 * ends when the scheduler has answered or been silent for too long. See SchedulerConnection.
 */
class PrinterFetch : public QObject
{
    Q_OBJECT

public:
    /// What is asked in the thread.
    using Question = std::function<PrinterRecord(SchedulerConnection &scheduler)>;

    explicit PrinterFetch(Question question, QObject *parent = nullptr);
    /// Cancels the request.
    ~PrinterFetch() override;

    /// Waits for the answer; nothing when it does not come in time. An answer is given only once,
    /// here or by answered().
    std::optional<PrinterRecord> waitFor(std::chrono::milliseconds time);

Q_SIGNALS:
    /// The answer is here.
    void answered(const PrinterRecord &record);

private:
    struct Shared;

    std::optional<PrinterRecord> take();

    std::shared_ptr<Shared> mShared;
};
