#include "OwnedProcess.h"

namespace {
constexpr int stopTimeoutMs = 3'000;
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
    if (!waitForFinished(stopTimeoutMs)) {
        kill();
        waitForFinished(stopTimeoutMs);
    }
}
