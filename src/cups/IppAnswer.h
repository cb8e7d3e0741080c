// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cups/cups.h>

#include <memory>

struct IppAnswerDeleter
{
    void operator()(ipp_t *answer) const { ippDelete(answer); }
};

/// An answer of the scheduler's; null when there is none.
using IppAnswer = std::unique_ptr<ipp_t, IppAnswerDeleter>;
