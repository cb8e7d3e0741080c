// SPDX-License-Identifier: Apache-2.0
#include "Presets.h"

#include <algorithm>

namespace model::Presets {
namespace {
/// The nib's items; an item's tag is its place, counted from 1.
const QLatin1String identifiers[] = {
    QLatin1String("EveryEndMirrorOffOffOff"),
    QLatin1String("EveryEndMirrorOffOnOff"),
    QLatin1String("EveryEndMirrorOnOffOff"),
    QLatin1String("EveryEndMirrorOnOnOff"),
    QLatin1String("AHCMOffOffOffOff"),
    QLatin1String("AHCMOffOffOnOff"),
    QLatin1String("AHCMOffOnOffOff"),
    QLatin1String("AHCMOffOnOnOff"),
    QLatin1String("AHCMOnOffOffOff"),
    QLatin1String("AHCMOnOffOnOff"),
    QLatin1String("AHCMOnOnOffOff"),
    QLatin1String("AHCMOnOnOnOff"),
    QLatin1String("SPMROnOff"),
    QLatin1String("CTMROnOffOff"),
    QLatin1String("CTMROnOnOff"),
    QLatin1String("CTMROffOnOff"),
    QLatin1String("CTMROffOffOff"),
};

constexpr std::nullopt_t keep = std::nullopt;
constexpr bool on = true;
constexpr bool off = false;

/// By tag, from 1: cut every, cut at end, mirror, auto cut, half cut, chain, special tape, remove
/// blank space, cut mark.
const Effect effects[] = {
    {off, off, off, keep, keep, keep, keep, keep, keep},
    {off, on, off, keep, keep, keep, keep, keep, keep},
    {on, off, off, keep, keep, keep, keep, keep, keep},
    {on, on, off, keep, keep, keep, keep, keep, keep},
    {off, keep, off, off, off, off, off, keep, keep},
    {off, keep, off, off, off, on, off, keep, keep},
    {off, keep, off, off, on, off, off, keep, keep},
    {off, keep, off, off, on, on, off, keep, keep},
    {on, keep, off, on, off, off, off, keep, keep},
    {on, keep, off, on, off, on, off, keep, keep},
    {on, keep, off, on, on, off, off, keep, keep},
    {on, keep, off, on, on, on, off, keep, keep},
    {keep, keep, off, keep, keep, keep, on, keep, keep},
    {keep, keep, off, keep, keep, off, keep, keep, on},
    {keep, keep, off, keep, keep, on, keep, keep, on},
    {keep, keep, off, keep, keep, on, keep, keep, off},
    {keep, keep, off, keep, keep, off, keep, keep, off},
};

/// The boxes as presets and pictures read them: special tape puts the others aside.
OptionSet withoutWhatSpecialTapeHides(OptionSet boxes)
{
    if (boxes[SpecialTape]) {
        for (const Option hidden : {CutEvery, AutoCut, HalfCut, ChainPrint}) {
            boxes[hidden] = false;
        }
    }
    return boxes;
}

QLatin1String word(bool isOn)
{
    return isOn ? QLatin1String("On") : QLatin1String("Off");
}
} // namespace

QList<int> allTags()
{
    QList<int> tags;
    for (std::size_t i = 1; i <= std::size(identifiers); ++i) {
        tags.append(int(i));
    }
    return tags;
}

int tagOf(QLatin1String identifier)
{
    const auto found = std::ranges::find(identifiers, identifier);
    return found == std::end(identifiers) ? 0 : int(found - std::begin(identifiers)) + 1;
}

const Effect &effectOf(int tag)
{
    return effects[tag - 1];
}

bool isAllowed(int tag, const QString &paperName)
{
    static const int forbidden[] = {6, 7, 8, 10, 11, 12, 13};
    return !paperName.startsWith(QLatin1String("FL")) ||
           std::ranges::find(forbidden, tag) == std::end(forbidden);
}

int tagFor(const OptionSet &shownAndOn, const Setting &setting)
{
    const OptionSet box = withoutWhatSpecialTapeHides(shownAndOn);
    const bool cuts = box[AutoCut] || box[CutEvery];
    if (setting.isRV) {
        return 1 + 2 * box[CutEvery] + box[CutAtEnd];
    }
    if (setting.paperName.startsWith(QLatin1String("FL"))) {
        return box[HalfCut] ? 1 : cuts ? 9 : 5;
    }
    if (setting.showsCutMark) {
        return box[CutMark] ? (box[ChainPrint] ? 15 : 14) : (box[ChainPrint] ? 16 : 17);
    }
    return box[SpecialTape] ? 13 : 5 + 4 * cuts + 2 * box[HalfCut] + box[ChainPrint];
}

QString pictureFor(const OptionSet &shownAndOn, bool isRV)
{
    const OptionSet box = withoutWhatSpecialTapeHides(shownAndOn);
    const bool cuts = box[AutoCut] || box[CutEvery];
    if (isRV) {
        return QLatin1String("EveryEndMirror") + word(cuts) + word(!cuts && box[CutAtEnd]) +
               word(box[Mirror]);
    }
    if (box[SpecialTape]) {
        return QLatin1String("SPMROn") + word(box[Mirror]);
    }
    return QLatin1String("AHCM") + word(cuts) + word(box[HalfCut]) + word(box[ChainPrint]) +
           word(box[Mirror]);
}

} // namespace model::Presets
