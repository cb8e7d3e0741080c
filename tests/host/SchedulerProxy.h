// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <atomic>
#include <chrono>
#include <limits>
#include <thread>

/**
 * Stands between libcups and a scheduler on this machine, and spoils what the scheduler answers.
 *
 * While it lives, libcups of the calling thread asks it in place of the scheduler.
 */
class SchedulerProxy
{
public:
    /// @param scheduler "127.0.0.1:50000".
    explicit SchedulerProxy(const QByteArray &scheduler);
    ~SchedulerProxy();
    SchedulerProxy(const SchedulerProxy &) = delete;
    SchedulerProxy &operator=(const SchedulerProxy &) = delete;

    /// Where the proxy listens ("127.0.0.1:50000").
    const QByteArray &address() const { return mAddress; }

    /// Breaks connections off behind so many bytes of the answer to a request for a PPD; −1 for
    /// none.
    void cutPPDsAfter(int bytes) { mCut = bytes; }
    /// Gives no more answers on connections that are opened from now on.
    void setSilent(bool isSilent) { mIsSilent = isSilent; }
    /// Gives no more answers once there have been so many requests in all.
    void silenceAfter(int requests) { mAnswered = requests; }
    /// Closes a connection in place of an answer once there have been so many requests in all.
    void breakOffAfter(int requests) { mUnbroken = requests; }
    /// Has this request, counted from 1, name a printer that there is not.
    void misnamePrinterIn(int request) { mMisnamed = request; }
    /// Gives PPDs away to those alone who prove to be a local user with the certificate "local".
    void askWhoWantsPPDs() { mAsksWho = true; }
    /// Closes every connection that is open, as a scheduler does with idle ones.
    void closeConnections() { ++mClosings; }
    /// Has each answer come so much later from now on.
    void delayAnswers(std::chrono::milliseconds time) { mDelay = time; }
    /// Has the content of each answer come so much later than its head from now on.
    void delayContents(std::chrono::milliseconds time) { mContentDelay = time; }
    /// How many requests there have been.
    int requests() const { return mRequests; }

private:
    void acceptAll();
    void forward(int client, bool isSilent);
    /// Waits, but not for longer than this object lives.
    void pause(std::chrono::milliseconds time) const;

    QByteArray mScheduler;
    QByteArray mAddress;
    int mListener = -1;
    std::thread mThread;
    std::atomic_bool mIsStopping = false;
    std::atomic_bool mIsSilent = false;
    std::atomic_int mCut = -1;
    std::atomic_int mAnswered = std::numeric_limits<int>::max();
    std::atomic_int mUnbroken = std::numeric_limits<int>::max();
    std::atomic_int mMisnamed = 0;
    std::atomic_bool mAsksWho = false;
    std::atomic_int mClosings = 0;
    std::atomic<std::chrono::milliseconds> mDelay = {};
    std::atomic<std::chrono::milliseconds> mContentDelay = {};
    std::atomic_int mRequests = 0;
};
