// SPDX-License-Identifier: Apache-2.0
#include "kvprint/PrinterJob.h"

#include "cups/PrinterRecord.h"

std::unique_ptr<PrinterJob> PrinterJob::at(const PrinterRecord &printer,
                                           const PanelBundles &bundles, ProblemReporter &reporter,
                                           QString *error)
{
    auto target = PanelTarget::of(printer, PPDFile::Marks::Defaults, error);
    if (!error->isNull()) {
        return nullptr;
    }
    std::unique_ptr<PrinterJob> job(new PrinterJob);
    job->mQueue = printer.name;
    job->mSaved = printer.queue ? printer.queue->jobOptions() : JobOptions();
    if (target) {
        job->mSetup = std::make_unique<JobSetup>(std::move(*target), bundles, reporter);
    }
    return job;
}

std::unique_ptr<PrinterJob> PrinterJob::on(const QString &ppd, const PanelBundles &bundles,
                                           ProblemReporter &reporter, QString *error)
{
    auto target = PanelTarget::ofPPD(ppd, PPDFile::Marks::Defaults, error);
    if (!target) {
        return nullptr;
    }
    std::unique_ptr<PrinterJob> job(new PrinterJob);
    job->mSetup = std::make_unique<JobSetup>(std::move(*target), bundles, reporter);
    return job;
}

QString PrinterJob::apply(const JobSetup::Wish &wish)
{
    mAsked = wish.options;
    if (mSetup) {
        return mSetup->apply(wish);
    }
    return wish.preset.isNull()
               ? QString()
               : QStringLiteral("the printer %1 has no PPD, and so no presets").arg(mQueue);
}

JobOptions PrinterJob::askedOptions() const
{
    return mSetup ? mSetup->askedOptions() : mAsked;
}

JobOptions PrinterJob::jobOptions() const
{
    if (mSetup) {
        return mSetup->jobOptions();
    }
    JobOptions options = mSaved;
    options.merge(mAsked);
    return options;
}
