// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchCommand.h"

#include "cups/JobSubmission.h"
#include "kvprint/BatchLine.h"
#include "kvprint/BatchReader.h"
#include "kvprint/BatchReport.h"
#include "kvprint/JobPlanner.h"

BatchCommand::BatchCommand(CommandLine commandLine, const QString &bundleFolder)
    : mCommandLine(std::move(commandLine))
    , mBundles(PanelBundles::load(bundleFolder, mReporter))
    , mJournal(journalPath())
{
}

BatchCommand::~BatchCommand() = default;

QString BatchCommand::journalPath() const
{
    if (!mCommandLine.journal.isNull() || mCommandLine.actionFile == QLatin1String("-")) {
        return mCommandLine.journal;
    }
    return mCommandLine.actionFile + QStringLiteral(".journal");
}

QString BatchCommand::openJournal(const QByteArray &firstLine)
{
    return mCommandLine.continueFrom > 0 ? mJournal.resume(firstLine) : mJournal.begin(firstLine);
}

ExitStatus BatchCommand::run()
{
    BatchReader batch(mCommandLine.actionFile);
    bool hasLine = batch.read();
    if (hasLine) {
        if (const QString fault = openJournal(batch.bytes()); !fault.isNull()) {
            mReporter.report(fault);
            return ExitStatus::NotPrinted;
        }
    }
    BatchReport report(mJournal);
    JobPlanner planner(mBundles, std::chrono::seconds(mCommandLine.timeout),
                       std::chrono::seconds(mCommandLine.retry));
    for (; hasLine && !report.isBroken(); hasLine = batch.read()) {
        if (batch.line() >= mCommandLine.continueFrom &&
            mJournal.line(batch.line()) != BatchJournal::Line::Sent) {
            process(batch, planner, report);
        }
    }
    mPrinters.clear();
    mReporter.report(batch.error());
    if (!batch.error().isNull() || report.isBroken()) {
        return ExitStatus::NotPrinted;
    }
    return report.hasFailed() ? ExitStatus::LineFailed : ExitStatus::Printed;
}

void BatchCommand::process(const BatchReader &batch, JobPlanner &planner, BatchReport &report)
{
    const qint64 number = batch.line();
    QString fault;
    const auto wanted = BatchLine::read(batch.request(), &fault);
    if (!wanted) {
        report.failed(number, fault);
        return;
    }
    JobPlanner::Plan plan;
    plan.fault = JobSubmission::faultOf({wanted->file});
    if (plan.fault.isNull()) {
        plan = planner.plan(wanted->printer.isNull() ? mCommandLine.printer : wanted->printer,
                            wanted->wish);
    }
    if (!plan.fault.isNull()) {
        report.failed(number, plan.fault);
        return;
    }
    const bool mayBeThere = mJournal.line(number) == BatchJournal::Line::Begun;
    printer(plan.printer, report)
        .add({number, mJournal.jobName(number), mayBeThere, wanted->file, plan.options,
              plan.warnings});
}

BatchPrinter &BatchCommand::printer(const QString &name, BatchReport &report)
{
    std::unique_ptr<BatchPrinter> &known = mPrinters[name];
    if (!known) {
        const BatchPrinter::Limits limits{std::chrono::seconds(mCommandLine.timeout),
                                          std::chrono::seconds(mCommandLine.retry),
                                          std::size_t(mCommandLine.pending)};
        known = std::make_unique<BatchPrinter>(name, limits, report);
    }
    return *known;
}
