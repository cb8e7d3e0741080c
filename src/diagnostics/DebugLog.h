// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/FormatString.h"

#include <QString>

/// The tail of debugLog(), for any level.
void writeDebugLog(const QString &text);

/// The tail of debugLogFd(), for any level.
void writeDebugLogFd(int descriptor, const QString &text);

/**
 * Prints "DEBUG: " and a line to standard error when the level is 0 or less.
 *
 * @param format see stringWithFormat(). What UTF-8 cannot hold is printed as "?"; the line ends at
 *        a null character.
 */
template <typename... Arguments>
void debugLog(qint32 level, const QString &format, const Arguments &...arguments)
{
    if (level <= 0) {
        writeDebugLog(stringWithFormat(format, {FormatArgument(arguments)...}));
    }
}

/**
 * Prints a line to a descriptor when the level is 0 or less.
 *
 * @param descriptor see writeToDescriptor().
 * @param format see stringWithFormat(). What UTF-8 cannot hold is printed as "?".
 */
template <typename... Arguments>
void debugLogFd(qint32 level, int descriptor, const QString &format, const Arguments &...arguments)
{
    if (level <= 0) {
        writeDebugLogFd(descriptor, stringWithFormat(format, {FormatArgument(arguments)...}));
    }
}
