// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

/// Times with the extension and without it, by what has been timed.
class ExtensionTimes
{
public:
    /// What the times without the extension are called.
    static std::string without(const std::string &name) { return name + ", without"; }

    /// Adds one time, in seconds.
    void add(const std::string &name, bool isExtended, double seconds);

    /// Compares all that has been added by these names, with the extension and without it.
    void compare(const std::string &title, const std::vector<std::string> &names, const Aim &aim);

    /// Compares what has been added with something else.
    void compare(ComparisonGroup group) { mGroups.push_back(std::move(group)); }

    /// Prints the medians in a table.
    void print(std::ostream &stream) const;

private:
    std::map<std::string, std::vector<double>> mTimes;
    std::vector<ComparisonGroup> mGroups;
};
