// SPDX-License-Identifier: Apache-2.0
#include "bench/PairedTimes.h"

#include <algorithm>
#include <cmath>

namespace {
std::vector<double> sorted(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values;
}

/// How many of the smallest of so many values lie below the median's 95 % limits: as many heads as
/// a coin shows with a probability of at most 2.5 %.
std::size_t outsideLimits(std::size_t count)
{
    double probability = std::pow(0.5, double(count));
    double sum = 0.0;
    std::size_t heads = 0;
    while (sum + probability <= 0.025) {
        sum += probability;
        probability *= double(count - heads) / double(heads + 1);
        ++heads;
    }
    return heads > 0 ? heads - 1 : 0;
}
} // namespace

double PairedTimes::median(const std::vector<double> &values)
{
    const std::vector<double> inOrder = sorted(values);
    const std::size_t half = inOrder.size() / 2;
    return inOrder.size() % 2 == 1 ? inOrder[half] : (inOrder[half - 1] + inOrder[half]) / 2.0;
}

void PairedTimes::add(double first, double second)
{
    mFirst.push_back(first);
    mSecond.push_back(second);
}

double PairedTimes::medianOfFirst() const
{
    return median(mFirst);
}

double PairedTimes::medianOfSecond() const
{
    return median(mSecond);
}

PairedTimes::Difference PairedTimes::difference() const
{
    std::vector<double> differences;
    for (std::size_t i = 0; i < mFirst.size(); ++i) {
        differences.push_back(mSecond[i] - mFirst[i]);
    }
    differences = sorted(differences);
    const std::size_t outside = outsideLimits(differences.size());
    return {median(differences), differences[outside],
            differences[differences.size() - 1 - outside]};
}
