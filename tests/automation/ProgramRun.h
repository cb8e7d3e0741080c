// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// How a run of the kvprint program ended.
struct ProgramRun
{
    /// The exit status; −1 when the program crashed or did not end.
    int status = -1;
    QString output;
    QString errors;

    /// The lines of the output.
    QStringList lines() const;
};

/// What a run of kvprint is given besides its arguments.
struct ProgramInput
{
    QByteArray standardInput;
    /// Of the process; this one's when it is empty.
    QStringList variables = {};
    /// The current folder; this process's when it is null.
    QString folder = {};
};

/// The variable that names a scheduler that does not answer.
inline const QString noScheduler = QStringLiteral("CUPS_SERVER=127.0.0.1:9");

/// Runs kvprint to its end.
ProgramRun runKvprint(const QStringList &arguments, const ProgramInput &input = {});

/// The arguments that print at a queue without a dialog, and more behind them.
QStringList atPrinter(const QString &queue, const QStringList &more = {});
/// "-o" in front of each of the options.
QStringList options(const QStringList &all);

/// Runs a line in a shell.
ProgramRun runInShell(const QString &line, const ProgramInput &input = {});

/// This process's environment with variables set ("NAME=VALUE") or unset ("NAME").
QProcessEnvironment environmentWith(const QStringList &variables);
