// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/PPDFile.h"
#include "cups/PrintQueue.h"
#include "cups/QueuePPD.h"

#include <QString>

#include <memory>
#include <optional>

class SchedulerConnection;

/// What the scheduler has told of a printer, a queue or an instance of one.
struct PrinterRecord
{
    /// What to do with a network printer that the scheduler has no queue for yet.
    enum class MissingQueue {
        /// It gets a temporary one, since only queues have a PPD: see PrintQueue::makeTemporary().
        Make,
        Leave,
    };

    /// Asks the scheduler, in three requests.
    static PrinterRecord read(SchedulerConnection &scheduler, const QString &name,
                              MissingQueue missing = MissingQueue::Make);

    /**
     * Asks the scheduler for the printer that the user means: the one that is asked for, in three
     * requests, or, when @p asked is empty, the default one, in five.
     *
     * An instance has to be one that somebody has created. The error about a printer that is not
     * there names those that are.
     */
    static PrinterRecord choose(SchedulerConnection &scheduler, const QString &asked);

    /// Asks the scheduler, in one request, whether the printer's PPD has changed, and takes the new
    /// one. Answer::Failed changes only the error.
    QueuePPD::Answer update(SchedulerConnection &scheduler);

    /**
     * Opens the PPD.
     *
     * @param reason set to what is wrong with it when the result is null; left alone when the
     *        printer just has none.
     */
    std::unique_ptr<PPDFile> openPPD(QString *reason, PPDFile::Marks marks) const;

    QString name;
    /// Nothing when there is no such queue, or no scheduler.
    std::optional<PrintQueue> queue;
    QueuePPD ppd;
    /// Why the queue or its PPD is missing; null when nothing is wrong.
    QString error;
};
