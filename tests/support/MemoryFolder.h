// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QString>

#include <sys/statvfs.h>

/// The pattern for a temporary folder of many small files: in memory, where libraries can be loaded
/// from there, since a disk's file system searches for room for each file.
inline QString memoryFolderPattern(const QString &name)
{
    struct statvfs memory = {};
    const bool isUsable =
        statvfs("/dev/shm", &memory) == 0 && (memory.f_flag & (ST_NOEXEC | ST_RDONLY)) == 0;
    return (isUsable ? QStringLiteral("/dev/shm") : QDir::tempPath()) + u'/' + name +
           QStringLiteral("-XXXXXX");
}
