// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QMap>

/// What the user of an application has last chosen for each printer, be it a queue or an instance,
/// while the application runs.
class LastChoices
{
public:
    /// The options that the queue's last job was given; none when it had no job.
    JobOptions of(const QString &queue) const { return mChoices.value(queue); }

    /// Keeps the options that a job of the queue is given, in place of the former ones.
    void remember(const QString &queue, const JobOptions &options);

private:
    QMap<QString, JobOptions> mChoices;
};
