// SPDX-License-Identifier: Apache-2.0
#include "cutoption/Preset.h"

#include "preview/Strip.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr int firstTag = 1;
constexpr int lastTag = 17;

enum Setting : qint8 {
    Off = 0,
    On = 1,
    Keep = -1,
};

/// One row for each tag, from firstTag on, with the options in the catalogue's order.
constexpr Setting settings[lastTag][OptionCatalogue::size] = {
    // every, end, mirror, auto, half, chain, special, remove, mark
    {Off, Off, Off, Keep, Keep, Keep, Keep, Keep, Keep},
    {Off, On, Off, Keep, Keep, Keep, Keep, Keep, Keep},
    {On, Off, Off, Keep, Keep, Keep, Keep, Keep, Keep},
    {On, On, Off, Keep, Keep, Keep, Keep, Keep, Keep},
    {Off, Keep, Off, Off, Off, Off, Off, Keep, Keep},
    {Off, Keep, Off, Off, Off, On, Off, Keep, Keep},
    {Off, Keep, Off, Off, On, Off, Off, Keep, Keep},
    {Off, Keep, Off, Off, On, On, Off, Keep, Keep},
    {On, Keep, Off, On, Off, Off, Off, Keep, Keep},
    {On, Keep, Off, On, Off, On, Off, Keep, Keep},
    {On, Keep, Off, On, On, Off, Off, Keep, Keep},
    {On, Keep, Off, On, On, On, Off, Keep, Keep},
    {Keep, Keep, Off, Keep, Keep, Keep, On, Keep, Keep},
    {Keep, Keep, Off, Keep, Keep, Off, Keep, Keep, On},
    {Keep, Keep, Off, Keep, Keep, On, Keep, Keep, On},
    {Keep, Keep, Off, Keep, Keep, On, Keep, Keep, Off},
    {Keep, Keep, Off, Keep, Keep, Off, Keep, Keep, Off},
};

int tagOfLabelSeries(const Strip &strip)
{
    return 1 + 2 * int(strip.isCutEvery) + int(strip.isCutAtEnd);
}

int tagOnFlagPaper(const Strip &strip)
{
    if (strip.isHalfCut) {
        return 1;
    }
    return strip.isCut() ? 9 : 5;
}

int tagOfCutMarkModel(const Strip &strip)
{
    if (strip.hasCutMarks) {
        return strip.isChained ? 15 : 14;
    }
    return strip.isChained ? 16 : 17;
}
} // namespace

std::optional<bool> Preset::settingOf(int tag, OptionCatalogue::Option option)
{
    const Setting setting =
        tag < firstTag || tag > lastTag ? Keep : settings[tag - firstTag][option];
    return setting == Keep ? std::nullopt : std::optional(setting == On);
}

int Preset::tagOf(const Strip &strip, const Printer &printer)
{
    if (printer.isLabelSeries) {
        return tagOfLabelSeries(strip);
    }
    if (printer.hasFlagPaper) {
        return tagOnFlagPaper(strip);
    }
    if (printer.showsCutMark) {
        return tagOfCutMarkModel(strip);
    }
    return strip.isSpecialTape
               ? 13
               : 5 + 4 * int(strip.isCut()) + 2 * int(strip.isHalfCut) + int(strip.isChained);
}

bool Preset::suitsFlagPaper(int tag)
{
    constexpr int unsuitable[] = {6, 7, 8, 10, 11, 12, 13};
    return std::ranges::find(unsuitable, tag) == std::end(unsuitable);
}
