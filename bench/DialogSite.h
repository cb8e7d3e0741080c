// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/DialogRun.h"
#include "demo/PrivateScheduler.h"
#include "tests/host/SchedulerProxy.h"

#include <memory>

/**
 * A scheduler with printers for the measurements of dialogs, and a proxy in front of it that counts
 * the requests.
 *
 * Throws std::runtime_error when the scheduler cannot be started.
 */
class DialogSite
{
public:
    DialogSite();

    /// Starts an application at the scheduler, with or without the extension, for which it waits as
    /// long as DialogRun says.
    std::unique_ptr<DialogRun> start(const DialogApplication &application, const char *printer,
                                     bool isExtended, std::chrono::milliseconds patience) const;

    int requests() const { return mProxy->requests(); }
    /// How long the scheduler takes for each answer from now on.
    void delayAnswers(std::chrono::milliseconds time) { mProxy->delayAnswers(time); }
    /// Stops the scheduler's process, which then takes requests and answers none, or has it go on.
    void stop(bool isStopped);

private:
    std::unique_ptr<PrivateScheduler> mScheduler;
    std::unique_ptr<SchedulerProxy> mProxy;
};
