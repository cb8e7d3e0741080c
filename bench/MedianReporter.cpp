// SPDX-License-Identifier: Apache-2.0
#include "bench/MedianReporter.h"

#include "bench/RatioTable.h"

#include <iostream>

namespace {
bool isMedian(const benchmark::BenchmarkReporter::Run &run)
{
    const bool isOnlyOne =
        run.run_type != benchmark::BenchmarkReporter::Run::RT_Aggregate && run.repetitions == 1;
    return isOnlyOne || run.aggregate_name == "median";
}

/// What the measurement has timed itself, else the processor's time, in which a busy machine's
/// other work does not count.
double secondsOf(const benchmark::BenchmarkReporter::Run &run)
{
    const bool isManual = run.run_name.time_type == "manual_time";
    const double time = isManual ? run.GetAdjustedRealTime() : run.GetAdjustedCPUTime();
    return time / benchmark::GetTimeUnitMultiplier(run.time_unit);
}
} // namespace

bool MedianReporter::ReportContext(const Context &context)
{
    PrintBasicContext(&GetErrorStream(), context);
    return true;
}

void MedianReporter::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        if (isMedian(run)) {
            const std::string &name = run.run_name.function_name;
            const double seconds = secondsOf(run);
            mMedians[name] = seconds;
            GetOutputStream() << RatioTable::timeText(seconds) << "  " << name << std::endl;
        }
    }
}
