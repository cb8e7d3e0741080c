// SPDX-License-Identifier: Apache-2.0
#include "bench/ChildProcesses.h"

#include <sys/resource.h>

namespace {
double secondsOf(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
}
} // namespace

double processorSecondsOfChildren()
{
    rusage usage = {};
    getrusage(RUSAGE_CHILDREN, &usage);
    return secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime);
}
