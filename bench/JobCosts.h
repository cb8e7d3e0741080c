// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/PrivateScheduler.h"

#include <QStringList>
#include <QTemporaryDir>

#include <iosfwd>
#include <memory>

/**
 * What it costs to print many labels, each a job of its own: by lp and by kvprint, one by one, and
 * by one kvprint as a batch.
 *
 * Throws std::runtime_error when something cannot be printed.
 */
class JobCosts
{
public:
    JobCosts();

    /// Prints the labels in each way, and tells time, processor time and requests to the scheduler.
    void print(std::ostream &stream) const;

private:
    struct Way;
    struct Costs
    {
        double seconds = 0.0;
        double processorSeconds = 0.0;
    };

    QString write(const QString &name, const QByteArray &bytes) const;
    Costs costsOf(const Way &way, int jobs) const;
    /// Requests to the scheduler for a job among that many.
    double requestsOf(const Way &way, int jobs) const;

    QTemporaryDir mFolder;
    std::unique_ptr<PrivateScheduler> mScheduler;
    QString mLabel;

    static const Way ways[];
};
