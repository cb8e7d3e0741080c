// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ProgramRun.h"

#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QStringList>

/// A line of a batch: a job of a file with these other members.
QByteArray batchLine(const QString &file, QJsonObject members = {});

/// A run of "kvprint --batch" that can be watched.
class BatchRun
{
public:
    /// Starts it on a batch in a file, with these arguments behind.
    explicit BatchRun(const QString &batch, const QStringList &arguments = {},
                      const QStringList &variables = {});
    /// Kills it, unless it has ended.
    ~BatchRun();
    Q_DISABLE_COPY_MOVE(BatchRun)

    /// Waits for the end: the exit status; −1 for a crash, or when it does not end.
    int end(int limitMs = 60'000);
    /// Ends it with SIGKILL.
    void kill();

    QProcess &process() { return mProcess; }

    /// What has been answered so far, by the number of the line.
    QMap<int, QJsonObject> answers();
    /// How many lines have been answered so far.
    int answerCount();
    /// The numbers of the jobs in the order of the lines.
    QList<int> jobs();
    QString errors() { return mErrors += QString::fromLocal8Bit(mProcess.readAllStandardError()); }

private:
    QProcess mProcess;
    QByteArray mOutput;
    QString mErrors;
};
