// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"
#include "printcore/QtVersions.h"

#include <QByteArray>
#include <QString>

#include <functional>

/// What takes the log's records: text in UTF-8 without null characters.
using LogSink = std::function<void(const QByteArray &record)>;

/// The longest record in bytes: what the usual log daemons take without cutting it.
inline constexpr QtSize kLogRecordSize = 7680;

/**
 * Logs one line, at the level "notice" and under the application's own name.
 *
 * A line is one record, with the newlines that it holds. A line that is longer than a record is
 * logged in pieces, each with its number before it: "(1/3) ...". A null character is logged as "␀".
 */
KVPRINTCORE_EXPORT void logToSystem(const QString &line);

/// Gives the records to a sink in place of the system log; to the system log again without one.
/// @return the former sink, empty at first.
KVPRINTCORE_EXPORT LogSink setLogSink(LogSink sink);
