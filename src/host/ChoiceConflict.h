// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/PPDFile.h"

#include <QString>
#include <QStringList>

#include <optional>

class JobOptions;

/// Two choices of a job that the PPD forbids together.
struct ChoiceConflict
{
    /**
     * The first choice of a panel's that the PPD forbids beside another of a job's; nothing when
     * there is none, or when the saved options have both already.
     *
     * @param keys of the printer's options that the panels decide.
     * @param saved what the job started from.
     * @param job the options of the job, in the printer's words.
     * @param error set when the PPD cannot be read once more.
     */
    static std::optional<ChoiceConflict> find(const PPDFile &ppd, const QStringList &keys,
                                              const JobOptions &saved, const JobOptions &job,
                                              QString *error);

    /// What to report of it.
    QString fault() const;

    bool operator==(const ChoiceConflict &) const = default;

    PPDChoice ofPanels;
    PPDChoice other;
};
