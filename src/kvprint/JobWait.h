// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/SchedulerConnection.h"
#include "cups/SchedulerJob.h"
#include "host/ProblemReporter.h"
#include "kvprint/CommandLine.h"
#include "kvprint/PrintCommand.h"

#include <optional>

/// Waits until a job has ended. The job's progress goes to standard error if that is a terminal.
class JobWait
{
public:
    explicit JobWait(const CommandLine &commandLine);

    /// Writes the job's name to standard output as lp does, and waits.
    ///
    /// @return ExitStatus::NotCompleted, with a report, when the job has been stopped, cancelled or
    ///         aborted.
    ExitStatus run(int job);

private:
    /// Asks for the job, again and again while the scheduler does not answer; nothing, with a
    /// report, when it does not tell.
    std::optional<SchedulerJob> read(int job);
    void tell(const SchedulerJob &job);

    const CommandLine &mCommandLine;
    ProblemReporter mReporter;
    QString mTold;
};
