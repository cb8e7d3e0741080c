// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"
#include "kvprint/BatchJournal.h"
#include "kvprint/BatchPrinter.h"
#include "kvprint/CommandLine.h"
#include "kvprint/PrintCommand.h"

#include <map>
#include <memory>

class BatchReader;
class BatchReport;
class JobPlanner;

/**
 * One run of kvprint that prints a batch: many jobs, each a line of a file, which is answered by a
 * line on standard output.
 *
 * The panels are asked in this thread; each printer's jobs are sent in a thread of its own.
 */
class BatchCommand
{
public:
    /// @param bundleFolder where the panels' bundles are.
    BatchCommand(CommandLine commandLine, const QString &bundleFolder);
    ~BatchCommand();

    ExitStatus run();

private:
    /// The path of the journal; null for none.
    QString journalPath() const;
    QString openJournal(const QByteArray &firstLine);
    void process(const BatchReader &batch, JobPlanner &planner, BatchReport &report);
    BatchPrinter &printer(const QString &name, BatchReport &report);

    CommandLine mCommandLine;
    ProblemReporter mReporter;
    PanelBundles mBundles;
    BatchJournal mJournal;
    /// By the printer's name.
    std::map<QString, std::unique_ptr<BatchPrinter>> mPrinters;
};
