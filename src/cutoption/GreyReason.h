#pragma once

#include "cutoption/OptionCatalogue.h"

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
    /// The option whose title stands for the sentence's "%1"; OptionCatalogue::Count for none.
    OptionCatalogue::Option other;

    /**
     * The reason that applies to a control that is greyed.
     *
     * @param control the option; OptionCatalogue::Count for the count field and its stepper.
     * @param causes the causes that are given now.
     */
    static GreyReason of(OptionCatalogue::Option control, quint32 causes);
};
