// SPDX-License-Identifier: Apache-2.0
#include "printcore/Beep.h"

#include <utility>

namespace {
Beeper &processBeeper()
{
    static Beeper beeper;
    return beeper;
}
} // namespace

void NSBeep()
{
    // A copy: the beeper may be replaced while it sounds.
    if (const Beeper beeper = processBeeper()) {
        beeper();
    }
}

Beeper setBeeper(Beeper beeper)
{
    return std::exchange(processBeeper(), std::move(beeper));
}
