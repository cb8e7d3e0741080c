// SPDX-License-Identifier: Apache-2.0
#include "bench/ExtensionTimes.h"

#include "bench/PairedTimes.h"
#include "bench/RatioTable.h"

void ExtensionTimes::add(const std::string &name, bool isExtended, double seconds)
{
    mTimes[isExtended ? name : without(name)].push_back(seconds);
}

void ExtensionTimes::compare(const std::string &title, const std::vector<std::string> &names,
                             const Aim &aim)
{
    ComparisonGroup group = {title, {}};
    for (const std::string &name : names) {
        group.comparisons.push_back({name, without(name), aim});
    }
    compare(std::move(group));
}

void ExtensionTimes::print(std::ostream &stream) const
{
    std::map<std::string, double> medians;
    for (const auto &[name, times] : mTimes) {
        medians[name] = PairedTimes::median(times);
    }
    RatioTable(medians).print(stream, mGroups);
}
