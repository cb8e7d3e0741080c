// SPDX-License-Identifier: Apache-2.0
#include "kvprint/ListCommand.h"

#include "cups/PrintQueue.h"
#include "cups/PrinterRecord.h"
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
        const QString &asked = mCommandLine.printer;
        const QString chosen = known.choose(scheduler, asked, &fault);
        // The network may have more printers than anybody wants queues for.
        const auto missing =
            asked.isNull() ? PrinterRecord::MissingQueue::Leave : PrinterRecord::MissingQueue::Make;
        QStringList wanted = asked.isNull() ? known.all : QStringList(chosen);
        wanted.removeAll(QString());
        for (const QString &name : std::as_const(wanted)) {
            const bool isDefault = name == known.byDefault;
            isWhole = list.addQueue(scheduler, name, isDefault, missing) && isWhole;
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
