// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/ProblemReporter.h"
#include "kvprint/BatchJournal.h"

#include <QJsonObject>
#include <QStringList>

#include <mutex>

/**
 * What becomes of a batch's lines: in its journal, on standard output, and for the exit status. May
 * be used by several threads at once.
 *
 * When the journal or standard output cannot be written, the batch is broken, and nothing more may
 * be sent.
 */
class BatchReport
{
public:
    /// @param journal must outlive the report, which alone writes it.
    explicit BatchReport(BatchJournal &journal);

    /// Notes in the journal that a line is about to be sent; false when it must not be.
    bool begin(qint64 line);
    /// A line's job has been sent.
    ///
    /// @param warnings what the panels have said of it.
    void sent(qint64 line, const QString &printer, int job, const QStringList &warnings);
    /// A line could not be sent.
    void failed(qint64 line, const QString &fault);
    /// Tells the user a problem, each once.
    void tell(const QString &problem);

    bool isBroken() const;
    /// Whether a line could not be sent.
    bool hasFailed() const;

private:
    /// Breaks the batch, unless the fault is null.
    void breakWith(const QString &fault);
    void answer(const QJsonObject &line);

    mutable std::mutex mMutex;
    BatchJournal &mJournal;
    ProblemReporter mReporter;
    bool mIsBroken = false;
    bool mHasFailed = false;
};
