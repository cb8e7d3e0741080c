// SPDX-License-Identifier: Apache-2.0
#include "kvprint/DirectCommand.h"

#include "automation/Picture.h"
#include "cups/JobSubmission.h"
#include "cups/PrinterRecord.h"
#include "kvprint/LpCommand.h"
#include "kvprint/StandardOutput.h"
#include "plugin/PDEPanel.h"

#include <QFileInfo>
#include <QWidget>

DirectCommand::DirectCommand(CommandLine commandLine, const QString &bundleFolder)
    : mCommandLine(std::move(commandLine))
    , mScheduler(std::chrono::seconds(mCommandLine.timeout))
    , mBundles(PanelBundles::load(bundleFolder, mReporter))
{
    QObject::connect(&mEvents, &PanelEvents::alerted,
                     [this](const QString &text) { mReporter.report(text); });
}

DirectCommand::~DirectCommand() = default;

ExitStatus DirectCommand::fail(ExitStatus status, const QString &fault)
{
    mReporter.report(fault);
    return status;
}

ExitStatus DirectCommand::run()
{
    const QString fault = JobSubmission::faultOf(mCommandLine.files);
    if (!fault.isNull()) {
        mReporter.report(fault);
        if (!mCommandLine.isDryRun) {
            return ExitStatus::NotPrinted;
        }
    }
    if (const ExitStatus status = setUp(); status != ExitStatus::Printed) {
        return status;
    }
    if (mCommandLine.action == CommandLine::Action::Screenshot) {
        return writePicture();
    }
    return mCommandLine.isDryRun ? tell() : print();
}

ExitStatus DirectCommand::setUp()
{
    QString fault;
    if (mCommandLine.ppd.isNull()) {
        const PrinterRecord printer = PrinterRecord::choose(mScheduler, mCommandLine.printer);
        mJob = PrinterJob::at(printer, mBundles, mReporter, &fault);
    } else {
        mJob = PrinterJob::on(mCommandLine.ppd, mBundles, mReporter, &fault);
    }
    if (!mJob) {
        return fail(ExitStatus::NotPrinted, fault);
    }
    fault = mJob->apply({mCommandLine.preset, mCommandLine.options});
    return fault.isNull() ? ExitStatus::Printed : fail(ExitStatus::Usage, fault);
}

ExitStatus DirectCommand::print()
{
    JobOptions options = mJob->jobOptions();
    if (mCommandLine.copies > 0) {
        options.set(QStringLiteral("copies"), QString::number(mCommandLine.copies));
    }
    const QString title = QFileInfo(mCommandLine.files.first()).fileName();
    QString error;
    mJobId =
        JobSubmission::print(mScheduler, mJob->queue(), mCommandLine.files, title, options, &error);
    return mJobId != 0 ? ExitStatus::Printed : fail(ExitStatus::NotPrinted, error);
}

ExitStatus DirectCommand::tell()
{
    QString text;
    const auto summary =
        mJob->setup() ? mJob->setup()->panels().summary() : QList<PanelHost::SummaryLine>();
    for (const PanelHost::SummaryLine &line : summary) {
        text += QStringLiteral("%1: %2\n").arg(line.title, line.value);
    }
    JobOptions options = mJob->askedOptions();
    if (mCommandLine.copies > 0) {
        options.remove(QStringLiteral("copies"));
    }
    text += lpCommand(mJob->queue(), mCommandLine.copies, options, mCommandLine.files) +
            QLatin1Char('\n');
    const QString fault = writeToStandardOutput(text.toLocal8Bit());
    return fault.isNull() ? ExitStatus::Printed : fail(ExitStatus::NotPrinted, fault);
}

ExitStatus DirectCommand::writePicture()
{
    QWidget *view = nullptr;
    if (mJob->setup() && !mJob->setup()->panels().panels().empty()) {
        PanelHost &host = mJob->setup()->panels();
        view = host.view(*host.panels().front());
    }
    if (!view) {
        return fail(ExitStatus::NotPrinted, QStringLiteral("the printer has no panel"));
    }
    const QString fault = writePictureOf(*view, mCommandLine.actionFile);
    return fault.isNull() ? ExitStatus::Printed : fail(ExitStatus::NotPrinted, fault);
}
