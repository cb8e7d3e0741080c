// SPDX-License-Identifier: Apache-2.0
#include "demo/BoundProcess.h"

#include <sys/prctl.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

BoundProcess::BoundProcess()
    : mParent(getpid())
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    setChildProcessModifier([this] { bind(); });
#endif
}

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
void BoundProcess::setupChildProcess()
{
    bind();
}
#endif

/// Runs in the new process, where little more than system calls may be done.
void BoundProcess::bind() const
{
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() != mParent) {
        _exit(EXIT_FAILURE);
    }
}

#include "moc_BoundProcess.cpp"
