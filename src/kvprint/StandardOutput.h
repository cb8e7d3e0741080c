// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

/// Writes bytes to standard output at once.
///
/// @return null, or the error.
QString writeToStandardOutput(const QByteArray &bytes);
