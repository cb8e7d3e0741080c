// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

/// Collects the median of each measurement's repetitions, and prints it.
class MedianReporter : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

    /// The medians in seconds, by the measurements' names.
    const std::map<std::string, double> &medians() const { return mMedians; }

private:
    std::map<std::string, double> mMedians;
};
