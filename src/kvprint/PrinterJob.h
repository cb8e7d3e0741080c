// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "kvprint/JobSetup.h"

#include <memory>

struct PrinterRecord;

/// A job that is set up without a dialog for any printer: with the panels' rules, or, at a printer
/// without a PPD, with the options as they are.
class PrinterJob
{
public:
    /// A job for a queue.
    ///
    /// @param error set to what is wrong with the printer when there is no result.
    /// @param bundles and @param reporter must outlive the job.
    static std::unique_ptr<PrinterJob> at(const PrinterRecord &printer, const PanelBundles &bundles,
                                          ProblemReporter &reporter, QString *error);
    /// A job for a PPD without a queue.
    ///
    /// @param error set as for PanelTarget::ofPPD().
    static std::unique_ptr<PrinterJob> on(const QString &ppd, const PanelBundles &bundles,
                                          ProblemReporter &reporter, QString *error);

    /// Sets the job up; may be called once.
    ///
    /// @return null, or what is refused.
    QString apply(const JobSetup::Wish &wish);

    /// The queue's name; null for a PPD alone.
    const QString &queue() const { return mQueue; }
    /// The panels; null for a printer without a PPD.
    JobSetup *setup() const { return mSetup.get(); }

    /// The options that the user asked for, with the values that the panels have: those for lp.
    JobOptions askedOptions() const;
    /// The options of the job, including those that the user has saved for the queue.
    JobOptions jobOptions() const;

private:
    PrinterJob() = default;

    QString mQueue;
    JobOptions mSaved;
    JobOptions mAsked;
    std::unique_ptr<JobSetup> mSetup;
};
