// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QString>
#include <QStringList>

#include <optional>

class SchedulerConnection;

/**
 * A print queue of the scheduler's, as its user sees it.
 *
 * A user may keep several sets of options for a queue: its instances, which are printers of their
 * own to their user. Such a printer's name is "QUEUE/INSTANCE".
 */
class PrintQueue
{
public:
    /// The names of all queues and of their instances, and of the network's printers as far as
    /// they answer at once.
    struct Names
    {
        QStringList all;
        /// The user's default queue or instance; null when there is none.
        QString byDefault;

        /// The name of the queue to use: @p asked unless that is empty, else the default queue,
        /// else the first one. Null when there is none; @p error is set to the reason when there
        /// are queues, but not that one, nor a printer of that name in the network.
        QString choose(SchedulerConnection &scheduler, const QString &asked, QString *error) const;
    };
    /// Empty, with the reason in @p error, when there are none.
    static Names names(SchedulerConnection &scheduler, QString *error);
    /// Asks for the names and chooses one of them; null, with the reason in @p error, when there is
    /// none.
    static QString choose(SchedulerConnection &scheduler, const QString &asked, QString *error);
    /// The queue or instance of that name with its saved options; nothing, with the reason in
    /// @p error, when there is no such queue or the scheduler does not answer. An instance that
    /// nobody has created has no saved options.
    static std::optional<PrintQueue> find(SchedulerConnection &scheduler, const QString &name,
                                          QString *error);

    /// Whether there is a queue of that name, disregarding the instance. False, with the reason in
    /// @p error, when there is none or the scheduler does not answer.
    static bool exists(SchedulerConnection &scheduler, const QString &name, QString *error);

    /// Whether a queue is stopped: it keeps its jobs until somebody starts it again. False also
    /// when the scheduler does not answer.
    ///
    /// @param queue without an instance.
    static bool isStopped(SchedulerConnection &scheduler, const QString &queue);

    /// Makes libcups create a temporary queue for a network printer that has none; the scheduler
    /// removes it when it is no longer used. False, with the reason in @p error, when that fails.
    /// The time limit of @p scheduler applies neither to the request that creates the queue nor to
    /// the time in which the scheduler asks the printer for its abilities.
    static bool makeTemporary(SchedulerConnection &scheduler, const QString &queue, QString *error);

    /// The name of the queue that a printer's jobs go to: without the instance.
    static QString queueOf(const QString &name);
    /// The URI of a queue or a class for requests to the scheduler.
    ///
    /// @param queue without an instance.
    static QByteArray uriOf(const QString &queue);

    const QString &name() const { return mName; }
    /// The name without the instance.
    QString queue() const { return queueOf(mName); }
    /// The queue whose PPD is the printer's: for a class of printers its first member.
    const QString &ppdQueue() const { return mPPDQueue; }
    /// Whether it is a network printer that the scheduler has no queue for yet: see
    /// makeTemporary().
    bool isMissing() const { return mIsMissing; }
    /// Where the queue sends its jobs; null when the scheduler does not tell.
    const QString &deviceURI() const { return mDeviceURI; }
    /// The queue's attributes and the options that the user has saved for it.
    const JobOptions &options() const { return mOptions; }

    /// The options that a job starts from: what the user has saved, and the queue's own defaults.
    JobOptions jobOptions() const;

private:
    /// Whether there is a printer of that name that the scheduler has no queue for yet.
    static bool isInNetwork(SchedulerConnection &scheduler, const QString &name);

    explicit PrintQueue(const cups_dest_t &destination);

    QString mName;
    QString mPPDQueue;
    QString mDeviceURI;
    JobOptions mOptions;
    bool mIsMissing = false;
};
