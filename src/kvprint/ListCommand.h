// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "automation/PanelEvents.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"
#include "kvprint/CommandLine.h"
#include "kvprint/PrintCommand.h"

/// One run of kvprint that tells the printers' options and presets.
class ListCommand
{
public:
    /// @param bundleFolder where the panels' bundles are.
    ListCommand(CommandLine commandLine, const QString &bundleFolder);

    ExitStatus run();

private:
    CommandLine mCommandLine;
    ProblemReporter mReporter;
    PanelEvents mEvents;
    PanelBundles mBundles;
};
