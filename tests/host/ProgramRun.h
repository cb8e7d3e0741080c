// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// How a run of a program ended.
struct ProgramRun
{
    /// The exit status; −1 when the program crashed or did not end.
    int status = -1;
    QString output;
    QString errors;

    /// The lines of the output.
    QStringList lines() const;
    /// Whether the errors contain the text; shows them when they do not.
    bool tells(const QString &text) const;
};

/// What a run is given besides its arguments.
struct ProgramInput
{
    QByteArray standardInput;
    /// What its environment has ("NAME=VALUE") and lacks ("NAME") other than this process's.
    QStringList variables = {};
    /// The current folder; this process's when it is null.
    QString folder = {};
};

/// The variable that names a scheduler that does not answer.
inline const QString noScheduler = u"CUPS_SERVER=127.0.0.1:9"_s;

/// Runs a program to its end.
ProgramRun runProgram(const QString &program, const QStringList &arguments,
                      const ProgramInput &input = {});
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
