// SPDX-License-Identifier: Apache-2.0
#include "bench/Clicks.h"

#include "bench/BenchSite.h"
#include "bench/Measurement.h"
#include "bench/PanelWindow.h"
#include "host/PanelHost.h"

#include <QAbstractButton>

#include <array>
#include <stdexcept>

namespace {
constexpr MeasuredPrinter printers[] = {usualPrinter, manyCounts, manySizes, manyOfBoth,
                                        tenthOfBoth};
} // namespace

/// A click, and what it needs of libcups.
struct Clicks::Click
{
    const char *name;
    const char *libcupsName;
    /// The button to click, and the one that undoes it.
    std::array<const char *, 2> buttons;
    /// The option that is marked.
    const char *markedKey;
    /// The options whose marked choices are read anew.
    std::array<const char *, 2> foundKeys;
    int foundCount;
    /// Whether cut every is on before the click.
    bool isCutEveryOn;
};

/// A panel that a click can be made in.
struct Clicks::Worked
{
    ppd_file_t *ppd;
    std::array<QAbstractButton *, 2> buttons;
    /// The choice that the first button marks, and the one that the second marks.
    std::array<QByteArray, 2> choices;
};

const Clicks::Click Clicks::clicks[] = {
    {"half cut clicked",
     "libcups for half cut",
     {"mHalfCutChkBx", "mHalfCutChkBx"},
     "KvHalfCut",
     {"KvHalfCut"},
     1,
     true},
    {"cut every clicked",
     "libcups for cut every",
     {"mCutEveryChkBx", "mCutEveryChkBx"},
     "KvAutoTapeCut",
     {"KvCutLabel", "KvAutoTapeCut"},
     2,
     false},
    {"count stepped",
     "libcups for the count",
     {"stepDown", "stepUp"},
     "KvCutLabel",
     {"KvCutLabel", "KvAutoTapeCut"},
     2,
     true},
};

Clicks::Clicks(BenchSite &site)
    : mSite(site)
{
}

Clicks::~Clicks() = default;

void Clicks::add()
{
    for (const MeasuredPrinter &printer : printers) {
        for (const Click &made : clicks) {
            Measurement::addShort(
                printer.labelled(made.name),
                [=, this, &made](benchmark::State &state) { click(state, printer, made); });
            Measurement::addShort(
                printer.labelled(made.libcupsName),
                [=, this, &made](benchmark::State &state) { callLibcups(state, printer, made); });
        }
    }
}

void Clicks::click(benchmark::State &state, const MeasuredPrinter &printer, const Click &click)
{
    const Worked worked = work(printer, click);
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        worked.buttons[next]->click();
        next = 1 - next;
    }
    if (next == 1) {
        worked.buttons[1]->click();
    }
}

void Clicks::callLibcups(benchmark::State &state, const MeasuredPrinter &printer,
                         const Click &click)
{
    const Worked worked = work(printer, click);
    std::size_t next = 0;
    for ([[maybe_unused]] auto _ : state) {
        ppdMarkOption(worked.ppd, click.markedKey, worked.choices[next].constData());
        for (int i = 0; i < click.foundCount; ++i) {
            benchmark::DoNotOptimize(
                ppdFindMarkedChoice(worked.ppd, click.foundKeys[std::size_t(i)]));
        }
        next = 1 - next;
    }
    ppdMarkOption(worked.ppd, click.markedKey, worked.choices[1].constData());
}

Clicks::Worked Clicks::work(const MeasuredPrinter &printer, const Click &click)
{
    PanelWindow &window = panel(printer);
    window.setCutEvery(click.isCutEveryOn);
    Worked worked = {window.host().ppd().get(), {}, {}};
    for (std::size_t i = 0; i < worked.buttons.size(); ++i) {
        worked.buttons[i] = &window.button(QLatin1String(click.buttons[i]));
        worked.buttons[i]->click();
        worked.choices[i] =
            window.host().ppd().markedChoice(QLatin1String(click.markedKey)).toUtf8();
    }
    if (worked.choices[0] == worked.choices[1]) {
        throw std::runtime_error("a click has not marked another choice");
    }
    return worked;
}

PanelWindow &Clicks::panel(const MeasuredPrinter &printer)
{
    auto &kept = mPanels[printer.name];
    if (!kept) {
        auto window = std::make_unique<PanelWindow>(mSite.target(printer), mSite.bundles());
        window->open(printer.lastCount());
        kept = std::move(window);
    }
    return *kept;
}

ComparisonGroup Clicks::comparisons()
{
    constexpr Aim time = {Aim::Kind::Time, 50e-6};
    ComparisonGroup group = {"A click until it is settled", {}};
    for (const Click &click : clicks) {
        auto &rows = group.comparisons;
        rows.push_back({click.name, click.libcupsName, time});
        for (const MeasuredPrinter &printer : largePrinters) {
            rows.push_back(
                {printer.labelled(click.name), printer.labelled(click.libcupsName), time});
        }
        for (const MeasuredPrinter &printer : largePrinters) {
            rows.push_back({printer.labelled(click.name), click.name, linearGrowth(printer)});
        }
        rows.push_back(
            {manyOfBoth.labelled(click.name), tenthOfBoth.labelled(click.name), linearGrowth()});
    }
    return group;
}
