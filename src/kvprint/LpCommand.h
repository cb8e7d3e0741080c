// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QString>
#include <QStringList>

/// The command line of lp that prints the files with the options, quoted for a shell.
///
/// @param queue null for the user's default one.
/// @param copies 0 for the number that the user has saved for the queue, else 1.
QString lpCommand(const QString &queue, int copies, const JobOptions &options,
                  const QStringList &files);
