// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QStringList>

/// A conversation with a kvprint process over its standard input and output.
class ProgramTalk
{
public:
    /// Starts "kvprint --script -" with these arguments in front.
    explicit ProgramTalk(QStringList arguments = {}, const QStringList &variables = {});
    ~ProgramTalk();
    Q_DISABLE_COPY_MOVE(ProgramTalk)

    /// Writes a line and waits for its answer; an empty object when none comes.
    QJsonObject ask(const QByteArray &line);
    /// Ends the input: the exit status, −1 for a crash or a program that does not end.
    int end();

    QProcess &process() { return mProcess; }

private:
    QProcess mProcess;
};
