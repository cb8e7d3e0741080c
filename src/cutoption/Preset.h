// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cutoption/OptionCatalogue.h"

#include <optional>

struct Strip;

/// A ready-made combination of options: an item of the panel's menu, known by its tag from 1 to 17.
namespace Preset {
/// Whether the preset ticks the option's box; nothing when it leaves the box as it is, or when
/// there is no such tag.
std::optional<bool> settingOf(int tag, OptionCatalogue::Option option);

/// What a tag depends on besides the strip.
struct Printer
{
    bool isLabelSeries = false;
    bool hasFlagPaper = false;
    bool showsCutMark = false;
};

/// The tag of the preset that describes the strip.
int tagOf(const Strip &strip, const Printer &printer);

/// Whether the preset can be chosen with flag paper in the printer.
bool suitsFlagPaper(int tag);
} // namespace Preset
