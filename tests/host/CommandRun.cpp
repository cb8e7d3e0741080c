// SPDX-License-Identifier: Apache-2.0
#include "CommandRun.h"

#include <QPrintDialog>

namespace {
CommandLine lineOf(const QString &printer, const QStringList &files, const QStringList &options,
                   int copies)
{
    CommandLine line;
    line.printer = printer;
    line.files = files;
    line.copies = copies;
    for (const QString &option : options) {
        line.options.parse(option);
    }
    return line;
}
} // namespace

CommandRun::CommandRun(const QString &printer, const QStringList &files, const QStringList &options,
                       int copies)
    : mCommand(lineOf(printer, files, options, copies), QStringLiteral(KV_BUNDLE_FOLDER))
{
}

bool CommandRun::open()
{
    ExitStatus status = ExitStatus::NotPrinted;
    QPrintDialog *dialog = mCommand.prepare(&status);
    if (!dialog) {
        return false;
    }
    mUser = std::make_unique<DialogDriver>(*dialog);
    return mUser->open();
}

bool CommandRun::openTab()
{
    return open() && panel().openTab();
}

int CommandRun::print()
{
    const bool printed = mUser->print() && mCommand.print() == ExitStatus::Printed;
    return printed ? mCommand.jobId() : 0;
}
