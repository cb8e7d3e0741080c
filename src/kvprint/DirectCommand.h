// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "automation/PanelEvents.h"
#include "cups/SchedulerConnection.h"
#include "host/ProblemReporter.h"
#include "kvprint/CommandLine.h"
#include "kvprint/PrintCommand.h"
#include "kvprint/PrinterJob.h"

#include <memory>

/// One run of kvprint without a dialog, for one printer: prints, tells what it would print, or
/// writes a picture of the panel.
class DirectCommand
{
public:
    /// @param bundleFolder where the panels' bundles are.
    DirectCommand(CommandLine commandLine, const QString &bundleFolder);
    ~DirectCommand();

    ExitStatus run();

    /// The number of the job that run() sent; 0 for none.
    int jobId() const { return mJobId; }

private:
    ExitStatus setUp();
    ExitStatus print();
    ExitStatus tell();
    ExitStatus writePicture();
    ExitStatus fail(ExitStatus status, const QString &fault);

    CommandLine mCommandLine;
    SchedulerConnection mScheduler;
    ProblemReporter mReporter;
    PanelEvents mEvents;
    PanelBundles mBundles;
    /// Null before setUp().
    std::unique_ptr<PrinterJob> mJob;
    int mJobId = 0;
};
