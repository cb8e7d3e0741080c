// SPDX-License-Identifier: Apache-2.0
#include "host/ProblemReporter.h"

#include "printcore/ProblemLine.h"
#include "printcore/SystemLog.h"

#include <unistd.h>

namespace {
void tellUser(const QString &problem)
{
    tellProblem(problem);
    // Nobody sees the standard error of what a menu has started. The log names the application.
    if (!isatty(STDERR_FILENO)) {
        logToSystem(QStringLiteral("kvprint: ") + asOneLine(problem));
    }
}
} // namespace

ProblemReporter::ProblemReporter()
    : mHandler(tellUser)
{
}

ProblemReporter::ProblemReporter(Handler handler)
    : mHandler(std::move(handler))
{
}

void ProblemReporter::report(const QString &problem)
{
    if (problem.isEmpty() || mTold.contains(problem)) {
        return;
    }
    mTold.insert(problem);
    mHandler(problem);
}
