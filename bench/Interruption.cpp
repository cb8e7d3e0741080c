// SPDX-License-Identifier: Apache-2.0
#include "bench/Interruption.h"

#include <csignal>
#include <stdexcept>

namespace {
volatile std::sig_atomic_t hasSignalCome = 0;

void note(int)
{
    hasSignalCome = 1;
}
} // namespace

void Interruption::watch()
{
    std::signal(SIGINT, note);
    std::signal(SIGTERM, note);
}

bool Interruption::hasCome()
{
    return hasSignalCome != 0;
}

void Interruption::check()
{
    if (hasCome()) {
        throw std::runtime_error("interrupted");
    }
}
