// SPDX-License-Identifier: Apache-2.0
#include "kvprint/ListCommand.h"

#include "cups/PrintQueue.h"
#include "cups/SchedulerConnection.h"
#include "kvprint/PrinterList.h"
#include "kvprint/PrinterTable.h"
#include "kvprint/StandardOutput.h"

#include <QJsonDocument>

ListCommand::ListCommand(CommandLine commandLine, const QString &bundleFolder)
    : mCommandLine(std::move(commandLine))
    , mBundles(PanelBundles::load(bundleFolder, mReporter))
{
}

ExitStatus ListCommand::run()
{
    PrinterList list(mBundles, mReporter);
    SchedulerConnection scheduler{std::chrono::seconds(mCommandLine.timeout)};
    QString fault;
    bool isWhole = true;
    if (!mCommandLine.ppd.isNull()) {
        list.addPPD(mCommandLine.ppd, &fault);
    } else {
        const auto known = PrintQueue::names(scheduler, &fault);
        const QString chosen = known.choose(mCommandLine.printer, &fault);
        for (const QString &name : known.all) {
            if (mCommandLine.printer.isNull() || name == chosen) {
                isWhole = list.addQueue(scheduler, name, name == known.byDefault) && isWhole;
            }
        }
    }
    if (fault.isNull()) {
        fault = writeToStandardOutput(
            mCommandLine.asJSON ? QJsonDocument(list.toJSON()).toJson(QJsonDocument::Indented)
                                : printerTable(list.toJSON()).toLocal8Bit());
    }
    mReporter.report(fault);
    return fault.isNull() && isWhole ? ExitStatus::Printed : ExitStatus::NotPrinted;
}
