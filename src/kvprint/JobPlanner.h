// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "automation/PanelEvents.h"
#include "cups/GrowingPauses.h"
#include "cups/PrinterRecord.h"
#include "cups/SchedulerConnection.h"
#include "host/PanelBundles.h"
#include "kvprint/JobSetup.h"

#include <QCache>
#include <QHash>
#include <QStringList>

#include <chrono>

/// Sets up job after job without a dialog, and remembers what it has asked the scheduler and which
/// options the panels have decided on, as long as the printer's PPD is the same.
class JobPlanner
{
public:
    struct Plan
    {
        /// The printer's name.
        QString printer;
        JobOptions options;
        /// What the panels have said.
        QStringList warnings;
        /// What is refused; null when nothing is.
        QString fault;
    };

    /**
     * @param silence how long the scheduler may be silent.
     * @param retry for how long a scheduler that does not answer is asked again.
     * @param bundles must outlive the planner.
     */
    JobPlanner(const PanelBundles &bundles, SchedulerConnection::Milliseconds silence,
               GrowingPauses::Milliseconds retry);

    /// @param printer the name of a queue or an instance; null for the default one.
    Plan plan(const QString &printer, const JobSetup::Wish &wish);

private:
    struct KnownPrinter
    {
        PrinterRecord record;
        /// When the scheduler was asked last.
        std::chrono::steady_clock::time_point asked;
    };

    /// The printer as the scheduler knows it; null, with the reason in the fault, when it does not.
    const PrinterRecord *record(const QString &printer, QString *fault);
    /// Asks from time to time whether the printer's PPD has changed, and forgets the printer and
    /// all plans if it has.
    void forgetIfChanged(const QString &printer);
    /// Asks for a printer, again and again while the scheduler does not answer.
    PrinterRecord read(const QString &printer);
    Plan make(const PrinterRecord &printer, const JobSetup::Wish &wish);

    const PanelBundles &mBundles;
    const SchedulerConnection::Milliseconds mSilence;
    GrowingPauses mPauses;
    PanelEvents mEvents;
    QHash<QString, KnownPrinter> mPrinters;
    /// By printer and wish.
    QCache<QStringList, Plan> mPlans;
};
