// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/Comparison.h"

#include <benchmark/benchmark.h>

class BenchSite;

/**
 * How long the preview takes to be drawn, beside a plain blit of the same picture.
 *
 * The preview is drawn as Qt draws any widget, with QWidget::render(), and so is the widget beside
 * it that does nothing but blit. The blit is also measured without a widget.
 */
class Drawings
{
public:
    /// @param site must outlive this object.
    explicit Drawings(BenchSite &site);

    /// Tells Google Benchmark of the measurements; this object must outlive their run.
    void add();

    /// What is to be compared with what.
    static ComparisonGroup comparisons();

private:
    void drawPreview(benchmark::State &state);

    BenchSite &mSite;
};
