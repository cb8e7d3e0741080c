// SPDX-License-Identifier: Apache-2.0
#include "demo/PrivateScheduler.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

#include <unistd.h>

/// Starts a scheduler, prints its process id to the standard output, and waits to be killed.
int main()
{
    QString error;
    const std::unique_ptr<PrivateScheduler> scheduler = PrivateScheduler::start(&error);
    if (!scheduler) {
        qWarning("%s", qPrintable(error));
        return EXIT_FAILURE;
    }
    std::printf("%lld\n", scheduler->processId());
    std::fflush(stdout);
    for (;;) {
        pause();
    }
}
