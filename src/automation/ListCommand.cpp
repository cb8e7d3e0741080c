#include "automation/ListCommand.h"

#include "automation/PrinterList.h"
#include "automation/PrinterTable.h"
#include "automation/StandardOutput.h"
#include "host/PrintQueue.h"

#include <QJsonDocument>

ListCommand::ListCommand(CommandLine commandLine, const QString &bundleFolder)
    : mCommandLine(std::move(commandLine))
    , mBundles(PanelBundle::loadAll(bundleFolder, mReporter))
{
}

ExitStatus ListCommand::run()
{
    PrinterList list(mBundles, mReporter);
    QString fault;
    if (!mCommandLine.ppd.isNull()) {
        list.addPPD(mCommandLine.ppd, &fault);
    } else if (const QString queue = PrintQueue::choose(mCommandLine.printer, &fault);
               !queue.isNull()) {
        const QString byDefault = PrintQueue::defaultName();
        const QStringList queues =
            mCommandLine.printer.isNull() ? PrintQueue::names() : QStringList(queue);
        for (const QString &name : queues) {
            list.addQueue(name, name == byDefault);
        }
    }
    if (fault.isNull()) {
        fault = writeToStandardOutput(
            mCommandLine.asJSON ? QJsonDocument(list.toJSON()).toJson(QJsonDocument::Indented)
                                : printerTable(list.toJSON()).toLocal8Bit());
    }
    mReporter.report(fault);
    return fault.isNull() ? ExitStatus::Printed : ExitStatus::NotPrinted;
}
