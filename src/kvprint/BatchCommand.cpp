// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchCommand.h"

#include "cups/JobSubmission.h"
#include "kvprint/BatchLine.h"
#include "kvprint/BatchReport.h"
#include "kvprint/JobPlanner.h"
#include "kvprint/LineReader.h"

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
    LineReader lines(mCommandLine.actionFile);
    QByteArray line;
    if (lines.read(&line)) {
        if (const QString fault = openJournal(line); !fault.isNull()) {
            mReporter.report(fault);
            return ExitStatus::NotPrinted;
        }
    }
    BatchReport report(mJournal);
    JobPlanner planner(mBundles, std::chrono::seconds(mCommandLine.timeout),
                       std::chrono::seconds(mCommandLine.retry));
    for (qint64 number = 1; !line.isEmpty() && lines.error().isNull() && !report.isBroken();
         ++number, lines.read(&line)) {
        if (number >= mCommandLine.continueFrom &&
            mJournal.line(number) != BatchJournal::Line::Sent) {
            process(number, line, planner, report);
        }
    }
    mPrinters.clear();
    mReporter.report(lines.error());
    if (!lines.error().isNull() || report.isBroken()) {
        return ExitStatus::NotPrinted;
    }
    return report.hasFailed() ? ExitStatus::LineFailed : ExitStatus::Printed;
}

void BatchCommand::process(qint64 number, const QByteArray &line, JobPlanner &planner,
                           BatchReport &report)
{
    QString fault;
    const auto wanted = BatchLine::read(line, &fault);
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
