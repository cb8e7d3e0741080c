// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QString>
#include <QStringList>

class SchedulerConnection;

/// Sends files to a queue as they are.
class JobSubmission
{
public:
    /// What is wrong with the first of the files that cannot be printed: missing, a folder, a
    /// device or pipe, unreadable or empty; null when nothing is.
    static QString faultOf(const QStringList &files);

    /// How sending has ended.
    struct Receipt
    {
        /// The job's number; 0 when it could not be sent whole.
        int job = 0;
        /// Why it could not be sent.
        QString error;
        /// The number of the job that is left behind, with or without documents; 0 for none, or
        /// when the scheduler has not told the number.
        int unfinished = 0;
        /// Whether it may work later: the scheduler does not answer or is busy, or the queue
        /// accepts no jobs for a while.
        bool mayWorkLater = false;
    };

    /**
     * Sends the files as one job.
     *
     * A network printer without a queue gets a temporary one: see PrintQueue::makeTemporary().
     *
     * @param printer the queue's name, with or without an instance, whose saved options are not
     *        added to the others.
     * @param title of the job.
     */
    static Receipt send(SchedulerConnection &scheduler, const QString &printer,
                        const QStringList &files, const QString &title, const JobOptions &options);

    /// Sends the files as one job like send(), and leaves no job behind that could not be sent
    /// whole.
    ///
    /// @return the job's number; 0, with the reason in @p error.
    static int print(SchedulerConnection &scheduler, const QString &printer,
                     const QStringList &files, const QString &title, const JobOptions &options,
                     QString *error);
};
