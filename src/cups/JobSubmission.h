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

    /**
     * Sends the files as one job.
     *
     * A network printer without a queue gets a temporary one: see PrintQueue::makeTemporary().
     *
     * @param printer the queue's name, with or without an instance, whose saved options are not
     *        added to the others.
     * @param title of the job.
     * @return the job's number; 0, with the reason in @p error and no job left behind, when it
     *         could not be sent whole.
     */
    static int print(SchedulerConnection &scheduler, const QString &printer,
                     const QStringList &files, const QString &title, const JobOptions &options,
                     QString *error);
};
