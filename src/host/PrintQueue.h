#pragma once

#include "host/JobOptions.h"

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
    /// The names of all queues and of their instances.
    struct Names
    {
        QStringList all;
        /// The user's default queue or instance; null when there is none.
        QString byDefault;

        /// The name of the queue that a user means: the one that is @p asked for, else the default
        /// one, else the first. Null when there is none, with the reason in @p error when it is not
        /// that there are no queues.
        QString choose(const QString &asked, QString *error) const;
    };
    /// Empty, with the reason in @p error, when there are none.
    static Names names(SchedulerConnection &scheduler, QString *error);
    /// Asks for the names and chooses one of them; null, with the reason in @p error, when there is
    /// none.
    static QString choose(SchedulerConnection &scheduler, const QString &asked, QString *error);
    /// The queue of that name, or an instance of it with the options that the user has saved for
    /// it, none for an instance that nobody has made; nothing, with what is missing, the queue or
    /// the scheduler, in @p error, when there is no such queue.
    static std::optional<PrintQueue> find(SchedulerConnection &scheduler, const QString &name,
                                          QString *error);

    /// Whether there is a queue of that name; what is missing, it or the scheduler, in @p error
    /// when there is none. Nothing is known of instances.
    static bool exists(SchedulerConnection &scheduler, const QString &name, QString *error);

    /// Has libcups make a queue for a printer of the network that has none; it goes again when it
    /// is not used any more. False, with the reason in @p error, when there is none then. The limit
    /// of @p scheduler does not hold for the request that makes the queue, nor for the time in
    /// which the scheduler asks the printer what it can do: both are libcups' own.
    static bool makeTemporary(SchedulerConnection &scheduler, const QString &queue, QString *error);

    /// The name of the queue that a printer's jobs go to: without the instance.
    static QString queueOf(const QString &name);
    /// The URI by which requests name a queue or a class, which is given without an instance.
    static QByteArray uriOf(const QString &queue);

    const QString &name() const { return mName; }
    /// The name without the instance.
    QString queue() const { return queueOf(mName); }
    /// The queue whose PPD is the printer's: for a class of printers its first member.
    const QString &ppdQueue() const { return mPPDQueue; }
    /// Where the queue sends its jobs; null when the scheduler does not tell.
    const QString &deviceURI() const { return mDeviceURI; }
    /// The queue's attributes and the options that the user has saved for it.
    const JobOptions &options() const { return mOptions; }

    /// The options that a job starts from: what the user has saved, and the queue's own defaults.
    JobOptions jobOptions() const;

private:
    explicit PrintQueue(const cups_dest_t &destination);

    QString mName;
    QString mPPDQueue;
    QString mDeviceURI;
    JobOptions mOptions;
};
