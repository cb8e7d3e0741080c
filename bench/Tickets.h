// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"

/// How long a private ticket of 1 KB takes to be read, beside a mere walk through its XML.
namespace Tickets {
/// Tells Google Benchmark of the measurements.
void add();

/// What is to be compared with what.
ComparisonGroup comparisons();
} // namespace Tickets
