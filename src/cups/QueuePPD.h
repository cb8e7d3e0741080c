// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/SchedulerConnection.h"

#include <QByteArray>
#include <QString>

#include <ctime>

/// The PPD of a queue as the scheduler has sent it, whole.
struct QueuePPD
{
    /// The result of a request.
    enum class Answer {
        /// The scheduler has sent a PPD, which is stored.
        Sent,
        /// The stored PPD is still current.
        Unchanged,
        /// The scheduler has no PPD for the queue, or no such queue.
        None,
        /// The request failed: see the error.
        Failed,
    };

    /**
     * Asks the scheduler for a queue's PPD, unless the stored one is still current.
     *
     * An answer that is incomplete, or too long for a PPD, is a failure, which changes nothing.
     *
     * @param queue without an instance.
     * @param error set, without the queue's name, for Answer::Failed.
     */
    Answer update(SchedulerConnection &scheduler, const QString &queue, QString *error);

    /// The PPD's text; null for none.
    QByteArray text;
    /// When the scheduler's file was changed last; 0 when unknown.
    time_t modified = 0;
};
