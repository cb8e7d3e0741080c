// SPDX-License-Identifier: Apache-2.0
#include "bench/Openings.h"

#include "bench/BenchSite.h"
#include "bench/Measurement.h"
#include "bench/PanelWindow.h"
#include "bench/PropertiesPage.h"

#include <QPixmapCache>

namespace {
constexpr const char *panelOpens = "panel opens";
constexpr const char *panelOpensAgain = "panel opens again";
constexpr const char *pageOpens = "Qt's page opens";
constexpr const char *pageOpensAgain = "Qt's page opens again";

/// Forgets the pictures that Qt keeps, as it has none when a process opens its first dialog.
void forgetPictures(bool isFirst)
{
    if (isFirst) {
        QPixmapCache::clear();
    }
}
} // namespace

/// How often something slow is measured.
struct Openings::Effort
{
    int repetitions;
    int iterations;
};

Openings::Openings(BenchSite &site)
    : mSite(site)
{
}

void Openings::add()
{
    add(usualPrinter, {15, 5}, {15, 5});
    add(manyCounts, {9, 3}, {9, 1});
    for (const MeasuredPrinter &printer : {mappedPrinter, unmappedPrinter}) {
        addOne(printer.labelled(panelOpens), {15, 5}, &Openings::openPanel, printer, true);
    }
    add(tenthOfBoth, {9, 3}, {9, 1});
    // The scheduler, libcups and Qt take seconds for such a PPD.
    add(manySizes, {3, 1}, {1, 1});
    add(manyOfBoth, {3, 1}, {1, 1});
    addOne(panelOpensAgain, {15, 5}, &Openings::openPanel, usualPrinter, false);
    addOne(pageOpensAgain, {15, 5}, &Openings::openPage, usualPrinter, false);
}

void Openings::add(const MeasuredPrinter &printer, const Effort &panel, const Effort &page)
{
    addOne(printer.labelled(panelOpens), panel, &Openings::openPanel, printer, true);
    addOne(printer.labelled(pageOpens), page, &Openings::openPage, printer, true);
}

void Openings::addOne(const std::string &name, const Effort &effort,
                      void (Openings::*measure)(benchmark::State &, const MeasuredPrinter &, bool),
                      const MeasuredPrinter &printer, bool isFirst)
{
    Measurement::add(
        name, [=, this](benchmark::State &state) { (this->*measure)(state, printer, isFirst); })
        ->Iterations(effort.iterations)
        ->Repetitions(effort.repetitions)
        ->UseManualTime();
}

void Openings::openPanel(benchmark::State &state, const MeasuredPrinter &printer, bool isFirst)
{
    for ([[maybe_unused]] auto _ : state) {
        PanelWindow window(mSite.target(printer), mSite.bundles());
        forgetPictures(isFirst);
        const auto start = Measurement::Clock::now();
        window.open();
        const std::chrono::duration<double> time = Measurement::Clock::now() - start;
        state.SetIterationTime(time.count());
    }
}

void Openings::openPage(benchmark::State &state, const MeasuredPrinter &printer, bool isFirst)
{
    mSite.addQueue(printer);
    for ([[maybe_unused]] auto _ : state) {
        PropertiesPage page(printer);
        forgetPictures(isFirst);
        state.SetIterationTime(page.open().count());
    }
}

ComparisonGroup Openings::comparisons()
{
    constexpr Aim half = {Aim::Kind::Ratio, 0.5};
    ComparisonGroup group = {"Opening", {}};
    auto &rows = group.comparisons;
    rows = {{panelOpens, pageOpens, half}, {panelOpensAgain, pageOpensAgain, half}};
    for (const MeasuredPrinter &printer : largePrinters) {
        rows.push_back({printer.labelled(panelOpens), printer.labelled(pageOpens), half});
    }
    rows.push_back({mappedPrinter.labelled(panelOpens),
                    unmappedPrinter.labelled(panelOpens),
                    {Aim::Kind::Ratio, 1.2}});
    for (const auto &[opening, isOurs] : {std::pair(panelOpens, true), {pageOpens, false}}) {
        for (const MeasuredPrinter &printer : largePrinters) {
            rows.push_back(
                {printer.labelled(opening), opening, isOurs ? linearGrowth(printer) : Aim()});
        }
        rows.push_back({manyOfBoth.labelled(opening), tenthOfBoth.labelled(opening),
                        isOurs ? linearGrowth() : Aim()});
    }
    return group;
}
