// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <array>

/// The PPD keywords of the cut option panel.
namespace PanelKeywords {
/// The option whose choices are counts; those of the others are off and on.
inline constexpr char count[] = "KvCutLabel";
inline constexpr char autoCut[] = "KvAutoTapeCut";
/// All options. A PPD that has one of them speaks for itself.
inline constexpr std::array options = {count,           "KvCutAtEnd",       "KvMirror",
                                       autoCut,         "KvHalfCut",        "KvChainPrint",
                                       "KvSpecialTape", "KvRemoveBlkSpace", "KvCutMark"};

/// The attribute that is "False" when auto cut has a check box of its own.
inline constexpr char autoCutHidden[] = "KvAutoCutObjHidden";
/// All attributes.
inline constexpr std::array attributes = {"KvTapeType", autoCutHidden};
} // namespace PanelKeywords
