// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/MeasuredPrinter.h"
#include "demo/PrivateScheduler.h"
#include "host/PanelBundles.h"
#include "host/PanelTarget.h"

#include <QDir>
#include <QStringList>

#include <memory>

/**
 * Where the measurements are made: the panel's bundle, a scheduler and the printers' PPDs, each
 * made when it is first asked for.
 *
 * Throws std::runtime_error when something is not as it has to be.
 */
class BenchSite
{
public:
    /// @param home an empty folder that is the process's home.
    explicit BenchSite(const QString &home);

    const PanelBundles &bundles();

    /// Adds the printer's queue to the scheduler, if it is not there yet.
    void addQueue(const MeasuredPrinter &printer);

    /// The printer's PPD, opened anew and known to hold all that it should, with its last size.
    PanelTarget target(const MeasuredPrinter &printer) const;

private:
    QString ppdPath(const MeasuredPrinter &printer) const;

    QDir mHome;
    PanelBundles mBundles;
    std::unique_ptr<PrivateScheduler> mScheduler;
    QStringList mQueues;
};
