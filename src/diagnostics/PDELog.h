// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PPD.h"
#include "printcore/PMCore.h"
#include "textinput/FormatString.h"

#include <QString>

#include <initializer_list>

/**
 * @file
 * Traces to the system log, and dumps, for whoever develops the panel. Nothing calls them until a
 * developer adds a call.
 */

/// The tail of the tagged lines: "tag self(object) text", without an object "tag text".
void logTagged(const QString &tag, const FormatArgument &object, const QString &format,
               std::initializer_list<FormatArgument> arguments);

// The names are established.
// NOLINTBEGIN(bugprone-reserved-identifier)

/**
 * Logs a line tagged "BEGIN".
 *
 * @param object the object that traces itself; may be null.
 * @param format see stringWithFormat(). Percent signs in the object's description count as text.
 */
template <typename... Arguments>
void _PDEProlog(const FormatArgument &object, const QString &format, const Arguments &...arguments)
{
    logTagged(QStringLiteral("BEGIN"), object, format, {FormatArgument(arguments)...});
}

/// Logs a line tagged "END", as _PDEProlog() does.
template <typename... Arguments>
void _PDEEpilog(const FormatArgument &object, const QString &format, const Arguments &...arguments)
{
    logTagged(QStringLiteral("END"), object, format, {FormatArgument(arguments)...});
}

/// Logs a line tagged "LOG", as _PDEProlog() does.
template <typename... Arguments>
void _PDELog(const FormatArgument &object, const QString &format, const Arguments &...arguments)
{
    logTagged(QStringLiteral("LOG"), object, format, {FormatArgument(arguments)...});
}

/**
 * Logs what the PPD says of an option, and of its first choice, as a block of lines.
 *
 * The lines of the flags "conflicted" and "choices->marked" show the flag's byte and the text that
 * stands behind it in its record. Text that is not in the system encoding shows as "(null)", and
 * so does the choice of an option without choices. What is missing is logged in one line: a null
 * PPD, then a null keyword, then an option that the PPD lacks.
 */
void _PDELog_ppd_option_t(ppd_file_t *ppd, const char *ppdOptionName);

/**
 * Writes the settings to the file "/KvPDE_NAME.plist" as an XML property list, all of it or
 * nothing.
 *
 * Nothing is written, and nothing said, for a null argument, for a name with a slash or a null
 * character, which would lie elsewhere, and where the root folder cannot be written.
 */
void _PDELog_PMPrintSettings_WriteToFile(PMPrintSettings printSettings, const QString &name);

// NOLINTEND(bugprone-reserved-identifier)
