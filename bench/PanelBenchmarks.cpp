#include "support/PanelProbe.h"
#include "support/TestHost.h"

#include <QPainter>

#include <benchmark/benchmark.h>

namespace {
std::shared_ptr<TestHost> allNineHost()
{
    return std::make_shared<TestHost>(PPDText().allNine().size("T12x100", 34.0, 283.0).open());
}

/// A panel on a PPD with all nine options, opened and shown.
struct OpenPanel
{
    OpenPanel()
    {
        host->panel = &panel;
        panel.panelView();
        panel.willShow();
    }

    std::shared_ptr<TestHost> host = allNineHost();
    PanelProbe panel{host, testBundle()};
};

/// Building the panel, its view, and its first show.
void openPanel(benchmark::State &state)
{
    const auto host = allNineHost();
    const auto bundle = testBundle();
    for (auto _ : state) {
        PanelProbe panel(host, bundle);
        host->panel = &panel;
        panel.panelView();
        panel.willShow();
        host->panel = nullptr;
        host->told.clear();
    }
}
BENCHMARK(openPanel)->Unit(benchmark::kMillisecond);

/// A click on half cut until everything is settled, painting aside.
void clickHalfCut(benchmark::State &state)
{
    OpenPanel open;
    CheckBox *box = open.panel.box(OptionCatalogue::HalfCut);
    for (auto _ : state) {
        box->click();
        open.host->told.clear();
    }
}
BENCHMARK(clickHalfCut)->Unit(benchmark::kMicrosecond);

/// The calls of libcups that such a click cannot do without.
void markAndFindByLibcups(benchmark::State &state)
{
    const auto host = allNineHost();
    bool on = false;
    for (auto _ : state) {
        on = !on;
        host->mark("KvHalfCut", on ? "ON" : "OFF");
        benchmark::DoNotOptimize(ppdFindMarkedChoice(host->ppd.get(), "KvHalfCut"));
    }
}
BENCHMARK(markAndFindByLibcups)->Unit(benchmark::kMicrosecond);

/// The picture of the strip, drawn by its view.
void drawPreview(benchmark::State &state)
{
    const OpenPanel open;
    QPixmap target(open.panel.mOptionView->size());
    for (auto _ : state) {
        open.panel.mOptionView->render(&target, {}, {}, {});
    }
}
BENCHMARK(drawPreview)->Unit(benchmark::kMicrosecond);

/// A picture of that size, drawn by Qt alone.
void drawPixmap(benchmark::State &state)
{
    const OpenPanel open;
    const QPixmap picture = *open.panel.mOptionView->targetDrawImage();
    QPixmap target(picture.size());
    for (auto _ : state) {
        QPainter(&target).drawPixmap(0, 0, picture);
    }
}
BENCHMARK(drawPixmap)->Unit(benchmark::kMicrosecond);
} // namespace
