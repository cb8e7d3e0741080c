#pragma once

#include "host/JobOptions.h"

#include <QString>
#include <QStringList>

/// The command line of lp that prints the files with the options, quoted for a shell.
///
/// @param queue null for the user's default one.
/// @param copies 0 for as many as the queue's user has saved, or one.
QString lpCommand(const QString &queue, int copies, const JobOptions &options,
                  const QStringList &files);
