// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cutoption/OptionCatalogue.h"

#include <optional>

/// Why the rules keep a control greyed.
struct GreyReason
{
    /// What may be behind it, one bit each.
    enum Cause : quint32 {
        OptionMissing = 0x1,
        FlagTape = 0x2,
        SpecialTapeOn = 0x4,
        CutEveryOff = 0x8,
        AnyCause = 0x10,
    };

    /// Key of the sentence that says so.
    const char *key;
    /// The option whose title stands for the sentence's "%1".
    std::optional<OptionCatalogue::Option> other;

    /// Why the option's box is greyed, when these causes are given.
    static GreyReason ofOption(OptionCatalogue::Option option, quint32 causes);
    /// Why the count's field and stepper are.
    static GreyReason ofCount(quint32 causes);
};
