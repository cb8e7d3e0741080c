// SPDX-License-Identifier: Apache-2.0
#include "kvprint/StandardOutput.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

QString writeToStandardOutput(const QByteArray &bytes)
{
    const auto size = std::size_t(bytes.size());
    if (std::fwrite(bytes.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0) {
        return {};
    }
    return QStringLiteral("standard output cannot be written: %1")
        .arg(QString::fromLocal8Bit(std::strerror(errno)));
}
