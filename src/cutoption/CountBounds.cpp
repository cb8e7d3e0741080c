// SPDX-License-Identifier: Apache-2.0
#include "cutoption/CountBounds.h"

#include "printcore/IntegerValue.h"

CountBounds CountBounds::of(const ChoiceList &choices)
{
    if (choices.isEmpty()) {
        return {};
    }
    return {integerValue(choices.at(0)->ppdTitle()),
            integerValue(choices.at(choices.size() - 1)->ppdTitle())};
}
