// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/DescriptorWriter.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <ctime>

namespace {
/// Keeps SIGPIPE from this thread for as long as it lives.
class BrokenPipeShield
{
public:
    BrokenPipeShield()
    {
        sigset_t pending;
        sigpending(&pending);
        mWasPending = sigismember(&pending, SIGPIPE) == 1;
        sigemptyset(&mBrokenPipe);
        sigaddset(&mBrokenPipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &mBrokenPipe, &mFormerMask);
    }
    ~BrokenPipeShield()
    {
        constexpr timespec noTime = {};
        while (!mWasPending && sigtimedwait(&mBrokenPipe, nullptr, &noTime) < 0 && errno == EINTR) {
        }
        pthread_sigmask(SIG_SETMASK, &mFormerMask, nullptr);
    }
    BrokenPipeShield(const BrokenPipeShield &) = delete;
    BrokenPipeShield &operator=(const BrokenPipeShield &) = delete;

private:
    sigset_t mBrokenPipe;
    sigset_t mFormerMask;
    bool mWasPending;
};

/// Whether a write that failed is worth another try, which waits until there is room.
bool canGoOn(int descriptor, int error)
{
    if (error == EAGAIN || error == EWOULDBLOCK) {
        pollfd writable = {descriptor, POLLOUT, 0};
        return poll(&writable, 1, -1) >= 0 || errno == EINTR;
    }
    return error == EINTR;
}
} // namespace

void writeToDescriptor(int descriptor, const QByteArray &bytes)
{
    const BrokenPipeShield shield;
    const char *at = bytes.constData();
    const char *const end = at + bytes.size();
    while (at != end) {
        const ssize_t written = write(descriptor, at, std::size_t(end - at));
        if (written > 0) {
            at += written;
        } else if (written == 0 || !canGoOn(descriptor, errno)) {
            return;
        }
    }
}

void writeToStandardError(const QByteArray &bytes)
{
    std::fflush(stderr);
    writeToDescriptor(fileno(stderr), bytes);
}
