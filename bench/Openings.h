// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"
#include "bench/MeasuredPrinter.h"

#include <benchmark/benchmark.h>

class BenchSite;

/**
 * How long the panel takes to be built and shown, beside Qt's own page of the same PPD's options.
 *
 * Both are timed from the click until the widgets are made, laid out and shown, but not painted.
 * The PPD has been opened before, as the print dialog does it when the printer is chosen.
 */
class Openings
{
public:
    /// @param site must outlive this object.
    explicit Openings(BenchSite &site);

    /// Tells Google Benchmark of the measurements; this object must outlive their run.
    void add();

    /// What is to be compared with what.
    static ComparisonGroup comparisons();

private:
    struct Effort;

    void add(const MeasuredPrinter &printer, const Effort &panel, const Effort &page);
    void addOne(const std::string &name, const Effort &effort,
                void (Openings::*measure)(benchmark::State &, const MeasuredPrinter &, bool),
                const MeasuredPrinter &printer, bool isFirst);
    void openPanel(benchmark::State &state, const MeasuredPrinter &printer, bool isFirst);
    void openPage(benchmark::State &state, const MeasuredPrinter &printer, bool isFirst);

    BenchSite &mSite;
};
