// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <string>
#include <vector>

/// What a measurement should stay below.
struct Aim
{
    enum class Kind {
        /// Nothing: it is there to be compared with.
        None,
        /// So many times what it is compared with.
        Ratio,
        /// A time, in seconds.
        Time,
        /// So many seconds more than what it is compared with.
        Difference,
    };

    Kind kind = Kind::None;
    double limit = 0.0;
};

/// Two measurements, by their names, of which one is compared with the other; or one, with none
/// beside it.
struct Comparison
{
    std::string name;
    std::string beside;
    Aim aim;
};

/// Comparisons that belong together.
struct ComparisonGroup
{
    std::string title;
    std::vector<Comparison> comparisons;
};
