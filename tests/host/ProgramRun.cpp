// SPDX-License-Identifier: Apache-2.0
#include "ProgramRun.h"

#include <QProcess>

namespace {
constexpr int runTimeoutMs = 60'000;
} // namespace

bool ProgramRun::tells(const QString &text) const
{
    if (!errors.contains(text)) {
        qWarning("%s", qPrintable(errors));
    }
    return errors.contains(text);
}

ProgramRun runProgram(const QString &program, const QStringList &arguments,
                      const ProgramInput &input)
{
    QProcess process;
    process.setProcessEnvironment(environmentWith(input.variables));
    process.setWorkingDirectory(input.folder);
    process.start(program, arguments);
    process.write(input.standardInput);
    process.closeWriteChannel();
    ProgramRun run;
    if (process.waitForFinished(runTimeoutMs) && process.exitStatus() == QProcess::NormalExit) {
        run.status = process.exitCode();
    } else {
        process.kill();
        process.waitForFinished();
    }
    run.output = QString::fromLocal8Bit(process.readAllStandardOutput());
    run.errors = QString::fromLocal8Bit(process.readAllStandardError());
    return run;
}

QStringList ProgramRun::lines() const
{
    return output.split(u'\n', Qt::SkipEmptyParts);
}

ProgramRun runKvprint(const QStringList &arguments, const ProgramInput &input)
{
    return runProgram(QStringLiteral(KV_PRINT_PROGRAM), arguments, input);
}

QStringList atPrinter(const QString &queue, const QStringList &more)
{
    return QStringList{u"--no-dialog"_s, u"-d"_s, queue} + more;
}

QStringList options(const QStringList &all)
{
    QStringList arguments;
    for (const QString &option : all) {
        arguments << u"-o"_s << option;
    }
    return arguments;
}

ProgramRun runInShell(const QString &line, const ProgramInput &input)
{
    return runProgram(u"/bin/sh"_s, {u"-c"_s, line}, input);
}

QProcessEnvironment environmentWith(const QStringList &variables)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const QString &variable : variables) {
        if (variable.contains(u'=')) {
            environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
        } else {
            environment.remove(variable);
        }
    }
    return environment;
}
