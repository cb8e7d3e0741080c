#include "host/ProblemReporter.h"

#include <cstdio>

ProblemReporter::ProblemReporter()
    : mHandler([](const QString &problem) {
        std::fprintf(stderr, "kvprint: %s\n", problem.toLocal8Bit().constData());
    })
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
