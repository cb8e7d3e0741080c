#pragma once

#include "host/SchedulerConnection.h"

#include <QByteArray>
#include <QString>

#include <ctime>

/// The PPD of a queue as the scheduler has sent it, whole.
struct QueuePPD
{
    /// What became of the request.
    enum class Answer {
        /// The PPD is here.
        Sent,
        /// It is what it was.
        Unchanged,
        /// The scheduler has no PPD for the queue, or no such queue.
        None,
        /// See the error.
        Failed,
    };

    /**
     * Asks the scheduler for a queue's PPD, unless it is still the one that is here.
     *
     * An answer that breaks off, or is too long for a PPD, is a failure, and leaves what is here.
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
