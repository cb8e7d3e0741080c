// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDir>
#include <QFile>
#include <QString>

#include <filesystem>

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

/// Copies what is in a folder, whose links become files, into another one. QFile::copy() would wait
/// for the disk with each file.
inline bool copyFolder(const QString &from, const QString &to)
{
    std::error_code error;
    std::filesystem::copy(QFile::encodeName(from).constData(), QFile::encodeName(to).constData(),
                          std::filesystem::copy_options::recursive, error);
    return !error;
}
