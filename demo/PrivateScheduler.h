// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/BoundProcess.h"

#include <QList>
#include <QMap>
#include <QString>
#include <QTemporaryDir>

#include <cups/cups.h>

#include <memory>
#include <optional>

/**
 * A CUPS scheduler of its own for this process, whose queues print into files.
 *
 * While it lives, CUPS_SERVER and libcups of the calling thread point to it; start it before other
 * threads talk to libcups. It belongs to the thread that started it and ends with that thread. One
 * at a time.
 */
class PrivateScheduler
{
public:
    /**
     * Starts a scheduler in a temporary folder and waits until it answers.
     *
     * @param error told the reason when nothing is returned.
     */
    static std::unique_ptr<PrivateScheduler> start(QString *error);

    /// Stops the scheduler, removes its folder and restores the previous CUPS_SERVER.
    ~PrivateScheduler();

    Q_DISABLE_COPY_MOVE(PrivateScheduler)

    /**
     * Adds an enabled queue, or replaces the PPD of the queue of that name.
     *
     * @param ppdPath the queue's PPD; empty for a raw queue.
     */
    bool addPrinter(const QString &name, const QString &ppdPath, QString *error) const;

    /// Stops a queue, whose jobs are kept from here on, or starts it again.
    bool setPaused(const QString &name, bool isPaused, QString *error) const;

    /// Has a queue accept jobs or refuse them.
    bool setAccepting(const QString &name, bool isAccepting, QString *error) const;

    /// Stops the scheduler and starts it again at the same address, with its queues and jobs.
    bool restart(QString *error);

    /**
     * The file that holds what the latest job of a queue sent to its device.
     *
     * Without a PPD there is no filter, and without a filter nothing is written to a file.
     */
    QString outputPath(const QString &printer) const;

    /// Where the scheduler listens ("127.0.0.1:50000").
    QByteArray address() const;

    /// The process id of the scheduler.
    qint64 processId() const { return mProcess.processId(); }

    /// The temporary folder of the scheduler, outputPath() included.
    QString folder() const { return mFolder.path(); }

    /// What the scheduler, its filters and its devices have logged up to now.
    QString errorLog() const;

    /// The jobs of a queue, or of all queues, whatever their state, in ascending order.
    QList<int> jobIds(const QString &printer = {}) const;

    /// Waits until a job has ended or stopped; false when it is not completed within the time.
    bool waitForJob(int id, int timeoutMs) const;

    /// All attributes of a job by name, each as text with its values separated by commas.
    std::optional<QMap<QString, QString>> jobAttributes(int id, QString *error) const;

private:
    PrivateScheduler();

    bool createFolders(QString *error);
    bool writeConfiguration(QString *error) const;
    bool launch(QString *error);
    /// Starts the process and waits until it answers.
    bool run(QString *error);
    /// Sends a request about a queue.
    bool manage(ipp_op_t operation, const QString &queue, QString *error) const;
    bool waitUntilAnswering(QString *error);
    bool isLogged(const QString &message) const;
    bool isPortTaken() const;
    bool isAnswering() const;
    void publish();
    void restore();
    void stop();

    QString mProgram;
    QTemporaryDir mFolder;
    BoundProcess mProcess;
    int mPort = 0;
    bool mIsPublished = false;
    std::optional<QByteArray> mPreviousServer;
};
