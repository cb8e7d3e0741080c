// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/**
 * Writes all bytes to a descriptor: on after a short write or an interrupting signal, and waiting
 * for a descriptor that does not block.
 *
 * A descriptor that takes no more (closed, full, without a reader) is ignored, and raises no
 * SIGPIPE.
 */
void writeToDescriptor(int descriptor, const QByteArray &bytes);

/// Writes all bytes to standard error, behind what the application has written there.
void writeToStandardError(const QByteArray &bytes);
