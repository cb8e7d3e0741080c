// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"
#include "bench/MeasuredPrinter.h"

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <string>

class BenchSite;
class PanelWindow;

/**
 * How long a click in the panel takes until everything is settled, painting aside, beside the calls
 * of libcups that it needs: marking the choice, and finding the marked choices that are read anew.
 *
 * The panel is at its last count and at its last paper size, which any search finds last.
 */
class Clicks
{
public:
    /// @param site must outlive this object.
    explicit Clicks(BenchSite &site);
    ~Clicks();

    Q_DISABLE_COPY_MOVE(Clicks)

    /// Tells Google Benchmark of the measurements; this object must outlive their run.
    void add();

    /// What is to be compared with what.
    static ComparisonGroup comparisons();

private:
    struct Click;
    struct Worked;

    static const Click clicks[];

    void click(benchmark::State &state, const MeasuredPrinter &printer, const Click &click);
    void callLibcups(benchmark::State &state, const MeasuredPrinter &printer, const Click &click);
    Worked work(const MeasuredPrinter &printer, const Click &click);
    PanelWindow &panel(const MeasuredPrinter &printer);

    BenchSite &mSite;
    std::map<std::string, std::unique_ptr<PanelWindow>> mPanels;
};
