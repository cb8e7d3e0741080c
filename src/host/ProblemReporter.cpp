#include "host/ProblemReporter.h"

#include "printcore/ProblemLine.h"

ProblemReporter::ProblemReporter()
    : mHandler(tellProblem)
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
