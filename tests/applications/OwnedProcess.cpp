// SPDX-License-Identifier: Apache-2.0
#include "OwnedProcess.h"

namespace {
constexpr int endTimeoutMs = 3'000;
} // namespace

OwnedProcess::OwnedProcess()
{
    setStandardInputFile(nullDevice());
}

OwnedProcess::~OwnedProcess()
{
    stop();
}

void OwnedProcess::stop()
{
    if (state() == NotRunning) {
        return;
    }
    terminate();
    if (!waitForFinished(endTimeoutMs)) {
        kill();
        waitForFinished(endTimeoutMs);
    }
}

#include "moc_OwnedProcess.cpp"
