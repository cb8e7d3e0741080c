// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

#include <atomic>
#include <thread>

#include <pthread.h>

/// A pipe that a thread of its own reads.
class ReadPipe
{
public:
    struct Habits
    {
        /// Bytes that the pipe holds and that one read takes; 0 for the system's own size.
        int size = 0;
        /// How long the reader rests before each read.
        int microseconds = 0;
        /// Whether writing never blocks.
        bool isNonBlocking = false;
        /// Whether a signal interrupts the writing thread before each read.
        bool interrupts = false;
    };

    ReadPipe();
    explicit ReadPipe(const Habits &habits);
    ~ReadPipe();
    ReadPipe(const ReadPipe &) = delete;
    ReadPipe &operator=(const ReadPipe &) = delete;

    /// The end to write to.
    int descriptor() const { return mWriteEnd; }

    /// Closes the end to write to; all that was written.
    QByteArray finish();

    /// Signals that have interrupted this process's writers.
    static int interruptions();

private:
    void readAll();

    Habits mHabits;
    pthread_t mWriter;
    int mReadEnd = -1;
    int mWriteEnd = -1;
    QByteArray mBytes;
    std::thread mReader;
};
