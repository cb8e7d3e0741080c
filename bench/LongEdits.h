// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"

/// How long the check of an edit that brings in a long text takes, beside the text's conversion.
namespace LongEdits {
/// Tells Google Benchmark of the measurements.
void add();

/// What is to be compared with what.
ComparisonGroup comparisons();
} // namespace LongEdits
