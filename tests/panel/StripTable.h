// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cutoption/OptionCatalogue.h"

#include <QString>

#include <bitset>

/// Check boxes that are on, one bit for each option in the catalogue's order.
using Boxes = std::bitset<9>;

enum Model {
    LabelPrinter,
    TapePrinter,
    CutMarkPrinter,
};

/// The preset that describes the boxes that are shown and on.
inline int expectedTag(Model model, bool isFLPaper, const Boxes &on)
{
    constexpr int byEveryAndEnd[2][2] = {{1, 2}, {3, 4}};
    constexpr int byCutAndHalf[2][2] = {{5, 1}, {9, 1}};
    constexpr int byMarkAndChain[2][2] = {{17, 16}, {14, 15}};
    constexpr int byCutHalfAndChain[2][2][2] = {{{5, 6}, {7, 8}}, {{9, 10}, {11, 12}}};
    const bool special = on[OptionCatalogue::SpecialTape];
    const bool every = on[OptionCatalogue::CutEvery] && !special;
    const bool half = on[OptionCatalogue::HalfCut] && !special;
    const bool chain = on[OptionCatalogue::ChainPrint] && !special;
    const bool cut = every || (on[OptionCatalogue::AutoCut] && !special);
    if (model == LabelPrinter) {
        return byEveryAndEnd[every][on[OptionCatalogue::CutAtEnd]];
    }
    if (isFLPaper) {
        return byCutAndHalf[cut][half];
    }
    if (model == CutMarkPrinter) {
        return byMarkAndChain[on[OptionCatalogue::CutMark]][chain];
    }
    return special ? 13 : byCutHalfAndChain[cut][half][chain];
}

/// The name of the picture for the boxes that are shown and on.
inline QString expectedName(bool isRV, const Boxes &on)
{
    const auto word = [](bool isOn) {
        return isOn ? QStringLiteral("On") : QStringLiteral("Off");
    };
    const bool special = on[OptionCatalogue::SpecialTape];
    const bool mirror = on[OptionCatalogue::Mirror];
    const bool cut = !special && (on[OptionCatalogue::CutEvery] || on[OptionCatalogue::AutoCut]);
    if (isRV) {
        return QStringLiteral("EveryEndMirror") + word(cut) +
               word(on[OptionCatalogue::CutAtEnd] && !cut) + word(mirror);
    }
    if (special) {
        return QStringLiteral("SPMROn") + word(mirror);
    }
    return QStringLiteral("AHCM") + word(cut) + word(on[OptionCatalogue::HalfCut]) +
           word(on[OptionCatalogue::ChainPrint]) + word(mirror);
}
