#include "OwnedProcess.h"

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace {
constexpr int stopTimeoutMs = 3'000;

void dieWithParent(pid_t parent)
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) {
        _exit(EXIT_FAILURE);
    }
}
} // namespace

OwnedProcess::OwnedProcess()
{
    setChildProcessModifier([parent = getpid()] { dieWithParent(parent); });
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
