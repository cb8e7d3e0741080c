// SPDX-License-Identifier: Apache-2.0
#include "preview/Strip.h"

#include "toolkit/ControlState.h"

#include <QAbstractButton>

Strip Strip::of(const StripBoxes &boxes)
{
    Strip strip;
    strip.isCutAtEnd = isOn(boxes.cutAtEnd);
    strip.isMirrored = isOn(boxes.mirror);
    strip.isSpecialTape = isOn(boxes.specialTape);
    strip.hasNoBlankSpace = isOn(boxes.removeBlkSpace);
    strip.hasCutMarks = isOn(boxes.cutMark);
    if (!strip.isSpecialTape) {
        strip.isCutEvery = isOn(boxes.cutEvery);
        strip.isAutoCut = isOn(boxes.autoCut);
        strip.isHalfCut = isOn(boxes.halfCut);
        strip.isChained = isOn(boxes.chainPrint);
    }
    return strip;
}

std::size_t Strip::pictureOfLabelSeries() const
{
    const std::size_t cut = isCut() ? 2 : std::size_t(isCutAtEnd);
    return cut + (isMirrored ? 3 : 0);
}

std::size_t Strip::pictureOfTapeFamily() const
{
    constexpr std::size_t firstOfSpecialTape = 16;
    const std::size_t cuts = isSpecialTape ? firstOfSpecialTape
                                           : 8 * std::size_t(isCut()) + 4 * std::size_t(isHalfCut) +
                                                 2 * std::size_t(isChained);
    return cuts + std::size_t(isMirrored);
}
