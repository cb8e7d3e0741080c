// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

/**
 * Prints bytes as hexadecimal digits to standard error when the level is 0 or less: "DEBUG:" and
 * 32 digits for each 16 bytes, then "DEBUG:" and the digits of the rest, which may be none. There
 * are no newlines.
 *
 * @param bytes null prints nothing.
 * @param count 0 or less prints nothing.
 */
void memoryCheck(qint32 level, const void *bytes, qint32 count);

/// Prints the same digits to a descriptor, 16 bytes to a line, without "DEBUG:".
void memoryCheckFd(qint32 level, int descriptor, const void *bytes, qint32 count);
