// SPDX-License-Identifier: Apache-2.0
#include "cups/GrowingPauses.h"

#include <algorithm>
#include <thread>

bool GrowingPauses::wait()
{
    const Milliseconds pause = std::min(mNext, mLimit - mTotal);
    if (pause <= Milliseconds::zero()) {
        return false;
    }
    std::this_thread::sleep_for(pause);
    mTotal += pause;
    mNext = std::min(2 * mNext, longest);
    return true;
}

void GrowingPauses::reset()
{
    mNext = shortest;
    mTotal = Milliseconds::zero();
}
