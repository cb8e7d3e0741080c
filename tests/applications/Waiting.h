// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDeadlineTimer>
#include <QThread>

/// How long a state may take to come about on a busy machine.
inline constexpr int kPatienceMs = 30'000;

/// Looks again and again until the state has come about; false when it has not in that time.
template <typename State>
bool waitFor(State isReached, int patienceMs = kPatienceMs)
{
    constexpr int pollMs = 15;
    QDeadlineTimer deadline(patienceMs);
    while (!isReached()) {
        if (deadline.hasExpired()) {
            return false;
        }
        QThread::msleep(pollMs);
    }
    return true;
}
