// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// What jobs for the sample printers carry of the maker's cut options, "KEY=CHOICE", sorted.
namespace SampleChoices {
/// What the printer's PPD declares as defaults: what a job carries whose panel was never seen.
QStringList defaults(const QString &printer);

/// What a job carries once the panel has been seen: where the cut-every box drives auto cut, auto
/// cut is as that box is, which the default count ticks.
QStringList seen(const QString &printer);

/// The choices with some of them replaced by others, which are separated by spaces.
QStringList replaced(QStringList choices, const QString &others);
} // namespace SampleChoices
