// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"
#include "kvprint/CommandLine.h"
#include "kvprint/PrintCommand.h"
#include "kvprint/PrinterCheck.h"

/// One run of kvprint that checks a queue, PPDs or a keyword map.
class CheckCommand
{
public:
    /// @param bundleFolder where the panels' bundles are.
    CheckCommand(CommandLine commandLine, const QString &bundleFolder);

    ExitStatus run();

private:
    /// Checks the queue of the command line, the default one when there is none.
    void checkQueue();
    /// Checks the PPDs of the command line with these maps.
    void checkPPDs(const PrinterMaps &maps);
    /// Checks the map of the command line, also with the PPDs.
    void checkMap();
    /// What is wrong with a map and a PPD that has all that it names.
    PrinterCheck checkedMap(const KeywordMap &map, const PrinterMaps &maps) const;
    void fail(const QString &fault);
    ExitStatus status() const;

    CommandLine mCommandLine;
    ProblemReporter mReporter;
    PanelBundles mBundles;
    QList<PrinterCheck> mChecks;
    bool mHasFailed = false;
};
