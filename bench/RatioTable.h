// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"

#include <iosfwd>
#include <map>
#include <vector>

/// Prints what has been measured beside what, and whether the aims are met.
class RatioTable
{
public:
    /// @param medians in seconds, by the measurements' names; must outlive the table.
    explicit RatioTable(const std::map<std::string, double> &medians);

    /// One line for each comparison of which all has been measured, below its group's title.
    void print(std::ostream &stream, const std::vector<ComparisonGroup> &groups) const;

    /// A time for people, always of the same width.
    static std::string timeText(double seconds);

private:
    std::string lines(const std::vector<Comparison> &comparisons) const;

    const std::map<std::string, double> &mMedians;
};
