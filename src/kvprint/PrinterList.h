// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/PrinterRecord.h"
#include "kvprint/CommandLine.h"
#include "kvprint/JobSetup.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

/// What kvprint knows of printers: their options, with the choices in force, and their presets.
class PrinterList
{
public:
    /// @param bundles and @param reporter must outlive the list.
    PrinterList(const PanelBundles &bundles, ProblemReporter &reporter);

    /// Adds a queue of the scheduler's; one without a PPD, or with a broken one, has no options.
    /// False, with a report, when the scheduler has not told what the queue has.
    bool addQueue(SchedulerConnection &scheduler, const QString &name, bool isDefault,
                  PrinterRecord::MissingQueue missing);
    /// Adds a PPD without a queue; false, with the reason in @p error, when it cannot be opened.
    bool addPPD(const QString &path, QString *error);

    /// "printers": an array in the order of adding, as kvprint --list --json writes it.
    QJsonObject toJSON() const;

private:
    void add(QJsonObject printer, std::optional<PanelTarget> target);

    const PanelBundles &mBundles;
    ProblemReporter &mReporter;
    QList<QJsonObject> mPrinters;
};
