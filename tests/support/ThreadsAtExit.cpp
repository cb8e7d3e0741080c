// SPDX-License-Identifier: Apache-2.0
#include <chrono>
#include <filesystem>
#include <system_error>
#include <thread>

namespace {
/// Keeps the process from ending while threads that Qt has told to end are still on their way out.
/// What such a thread holds may have no pointer left that the leak detector knows of.
class ThreadsAtExit
{
public:
    ThreadsAtExit() = default;
    ThreadsAtExit(const ThreadsAtExit &) = delete;
    ThreadsAtExit &operator=(const ThreadsAtExit &) = delete;

    ~ThreadsAtExit()
    {
        for (int polls = 0; polls < mostPolls && otherThreads(); ++polls) {
            std::this_thread::sleep_for(pollTime);
        }
    }

private:
    static constexpr int mostPolls = 5000;
    static constexpr std::chrono::milliseconds pollTime{1};

    static bool otherThreads()
    {
        std::error_code failed;
        const std::filesystem::directory_iterator tasks("/proc/self/task", failed);
        return !failed && std::distance(begin(tasks), end(tasks)) > 1;
    }
};

const ThreadsAtExit threadsAtExit;
} // namespace
