// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <vector>

/// Times of the same thing done in two ways, taken in pairs.
class PairedTimes
{
public:
    /// The middle one of the values, or the mean of the two in the middle.
    static double median(const std::vector<double> &values);

    /// Adds one pair, in seconds.
    void add(double first, double second);

    double medianOfFirst() const;
    double medianOfSecond() const;

    /// How much longer the second takes: the median of the pairs' differences, and the limits that
    /// it lies between with a probability of at least 95 %, by the pairs' signs alone.
    struct Difference
    {
        double median;
        double least;
        double most;
        /// Whether the limits tell that there is one.
        bool isMeasurable() const { return least > 0.0 || most < 0.0; }
    };
    Difference difference() const;

private:
    std::vector<double> mFirst;
    std::vector<double> mSecond;
};
