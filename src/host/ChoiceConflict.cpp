// SPDX-License-Identifier: Apache-2.0
#include "host/ChoiceConflict.h"

#include "cups/JobOptions.h"

#include <algorithm>

namespace {
/// What the PPD forbids of the marked choices, with an option of these.
QList<ChoiceConflict> conflictsIn(const PPDFile &ppd, const QStringList &keys)
{
    QList<ChoiceConflict> conflicts;
    for (const QString &key : keys) {
        const auto others = ppd.conflictsWith(key);
        for (const PPDChoice &other : others) {
            conflicts.append({{key, ppd.markedChoice(key)}, other});
        }
    }
    return conflicts;
}
} // namespace

std::optional<ChoiceConflict> ChoiceConflict::find(const PPDFile &ppd, const QStringList &keys,
                                                   const JobOptions &saved, const JobOptions &job,
                                                   QString *error)
{
    const auto marked = ppd.hasConstraints() ? ppd.with({}, error) : nullptr;
    if (!marked) {
        return std::nullopt;
    }
    marked->mark(saved);
    const QList<ChoiceConflict> former = conflictsIn(*marked, keys);
    marked->mark(job);
    const QList<ChoiceConflict> conflicts = conflictsIn(*marked, keys);
    const auto isNew = [&former](const ChoiceConflict &conflict) {
        return !former.contains(conflict);
    };
    const auto found = std::find_if(conflicts.begin(), conflicts.end(), isNew);
    return found == conflicts.end() ? std::nullopt : std::make_optional(*found);
}

QString ChoiceConflict::fault() const
{
    return QStringLiteral("%1=%2 cannot be combined with %3=%4: the printer's PPD forbids it")
        .arg(ofPanels.key, ofPanels.choice, other.key, other.choice);
}
