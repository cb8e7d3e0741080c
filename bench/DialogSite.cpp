// SPDX-License-Identifier: Apache-2.0
#include "bench/DialogSite.h"

#include <stdexcept>

#include <signal.h>

namespace {
struct SampleQueue
{
    const char *queue;
    const char *ppd;
};

constexpr SampleQueue sampleQueues[] = {
    {"label", "korvane-label"}, {"plain", "korvane-plain"}, {"tape", "korvane-tape"}};
} // namespace

DialogSite::DialogSite()
{
    QString error;
    mScheduler = PrivateScheduler::start(&error);
    for (const auto &[queue, ppd] : sampleQueues) {
        const QString path = QStringLiteral(KV_PPD_DIR "/%1.ppd").arg(QLatin1String(ppd));
        if (!mScheduler || !mScheduler->addPrinter(QLatin1String(queue), path, &error)) {
            throw std::runtime_error(error.toStdString());
        }
    }
    mProxy = std::make_unique<SchedulerProxy>(mScheduler->address());
}

std::unique_ptr<DialogRun> DialogSite::start(const DialogApplication &application,
                                             const char *printer, bool isExtended,
                                             std::chrono::milliseconds patience) const
{
    DialogApplication atSite = application;
    atSite.environment.insert(QStringLiteral("CUPS_SERVER"),
                              QString::fromLatin1(mProxy->address()));
    return std::make_unique<DialogRun>(atSite, QLatin1String(printer), isExtended, patience);
}

void DialogSite::stop(bool isStopped)
{
    kill(pid_t(mScheduler->processId()), isStopped ? SIGSTOP : SIGCONT);
}
