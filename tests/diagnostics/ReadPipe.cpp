// SPDX-License-Identifier: Apache-2.0
#include "ReadPipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace {
std::atomic<int> interruptionCount = 0;

void countInterruption(int)
{
    ++interruptionCount;
}

/// Lets a signal interrupt system calls, which are not restarted then.
void letSignalInterrupt()
{
    struct sigaction action = {};
    action.sa_handler = countInterruption;
    sigaction(SIGUSR1, &action, nullptr);
}
} // namespace

ReadPipe::ReadPipe()
    : ReadPipe(Habits())
{
}

ReadPipe::ReadPipe(const Habits &habits)
    : mHabits(habits)
    , mWriter(pthread_self())
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0) {
        qFatal("no pipe");
    }
    mReadEnd = ends[0];
    mWriteEnd = ends[1];
    if (mHabits.size > 0) {
        fcntl(mWriteEnd, F_SETPIPE_SZ, mHabits.size);
    }
    if (mHabits.isNonBlocking) {
        fcntl(mWriteEnd, F_SETFL, O_NONBLOCK);
    }
    letSignalInterrupt();
    mReader = std::thread(&ReadPipe::readAll, this);
}

ReadPipe::~ReadPipe()
{
    finish();
    close(mReadEnd);
}

QByteArray ReadPipe::finish()
{
    if (mReader.joinable()) {
        close(mWriteEnd);
        mReader.join();
    }
    return mBytes;
}

int ReadPipe::interruptions()
{
    return interruptionCount;
}

void ReadPipe::readAll()
{
    QByteArray buffer(mHabits.size > 0 ? mHabits.size : 65536, Qt::Uninitialized);
    for (;;) {
        if (mHabits.microseconds > 0) {
            std::this_thread::sleep_for(std::chrono::microseconds(mHabits.microseconds));
        }
        if (mHabits.interrupts) {
            pthread_kill(mWriter, SIGUSR1);
        }
        const ssize_t size = read(mReadEnd, buffer.data(), std::size_t(buffer.size()));
        if (size <= 0) {
            return;
        }
        mBytes.append(buffer.constData(), int(size));
    }
}
