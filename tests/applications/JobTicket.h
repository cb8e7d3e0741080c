// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QStringList>

/// What the scheduler of this process was told with a job.
namespace JobTicket {
/// "KEY=VALUE" of every attribute of the job's whose name begins so, sorted: one that the
/// scheduler was told twice is there twice.
QStringList attributes(int job, const QString &beginning);
} // namespace JobTicket
