// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <cstdio>

/// Writes a line to the standard output at once.
inline void say(const QString &line)
{
    std::printf("%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

/// A message handler that writes what Qt has to say to standard error, but for what its platform
/// without a display cannot do.
inline void dropOffscreenRemarks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    }
}
