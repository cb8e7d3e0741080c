// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <cups/cups.h>

#include <optional>

class SchedulerConnection;

/// What the scheduler tells of a job.
struct SchedulerJob
{
    /// Asks for a job; nothing when there is no such job, or, with the reason in @p error, when the
    /// scheduler does not answer.
    static std::optional<SchedulerJob> read(SchedulerConnection &scheduler, int id, QString *error);

    /**
     * Asks for the user's jobs at a queue whose name is a word, alone or with more words behind
     * it, whatever their state.
     *
     * @param queue without an instance.
     * @return with number, name, size and state alone, ascending by number; nothing, with the
     * reason in @p error, when the scheduler does not answer.
     */
    static std::optional<QList<SchedulerJob>> named(SchedulerConnection &scheduler,
                                                    const QString &queue, const QString &word,
                                                    QString *error);

    /// Takes a job back; false, with the reason in @p error, when the scheduler refuses or does not
    /// answer. A job that has ended is refused.
    static bool cancel(SchedulerConnection &scheduler, int id, QString *error);

    /// Whether nothing more will become of the job.
    bool hasEnded() const { return state >= IPP_JSTATE_CANCELED; }
    bool isPrinted() const { return state == IPP_JSTATE_COMPLETED; }
    /// The state as IPP names it ("processing-stopped").
    QString stateName() const;
    /// Why the job is in its state: the printer's message and the reasons, as the scheduler tells
    /// them; empty when it tells none.
    QString explanation() const;

    int id = 0;
    QString name;
    /// The queue that the job is at, without an instance.
    QString queue;
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    /// As IPP names them; without "none".
    QStringList reasons;
    /// What the printer says of the job; null when it says nothing.
    QString printerMessage;
    /// The size of the documents that have arrived, in units of 1,024 bytes, rounded up; 0 without
    /// documents.
    int kilobytes = 0;
    /// How many sheets have been printed; 0 also when the printer does not tell.
    int sheets = 0;
};
