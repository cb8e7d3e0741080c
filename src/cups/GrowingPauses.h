// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <chrono>

/// The pauses between attempts at something that may work later: each is twice as long as the one
/// before, from a tenth of a second up to ten seconds.
class GrowingPauses
{
public:
    using Milliseconds = std::chrono::milliseconds;

    /// @param limit the sum of all pauses at most.
    explicit GrowingPauses(Milliseconds limit)
        : mLimit(limit)
    {
    }

    /// Pauses; false, at once, when the limit has been reached.
    bool wait();
    /// It has worked: the next pause is the first again.
    void reset();

private:
    static constexpr Milliseconds shortest{100};
    static constexpr Milliseconds longest{10'000};

    Milliseconds mLimit;
    Milliseconds mNext = shortest;
    Milliseconds mTotal{0};
};
