// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>

struct stat;

/// What a file or folder is opened for.
enum class FileUse { Read, Enter, List };

/**
 * A file or folder that is checked before and after it is opened, and read through the descriptor
 * that was checked.
 *
 * Only regular files and folders are opened: opening a pipe would block, and opening a device can
 * have effects. Both the path and the open descriptor are checked, so exchanging the file in
 * between has no effect.
 *
 * A trusted file is one that only root and the user can change: they own the file and every folder
 * on its real path, and no group and no other user can write to them. The path is walked from the
 * root folder down: each folder is opened relative to the previous one, without following links,
 * and checked through its descriptor. Nobody who cannot write to a folder can exchange its entries.
 * Therefore path(), with all links resolved, leads to the checked file until root or the user
 * changes that, and can be passed to code that opens files by path, such as the dynamic linker.
 *
 * Above the top folder, which contains the files that belong together, two more kinds of folders
 * are accepted, because others cannot exchange the files of root and the user in them: folders with
 * the sticky bit, such as /tmp, and folders that the user's own group can write to, whose number is
 * the user's. Other members of that group are trusted like the user.
 */
class KVPRINTCORE_EXPORT CheckedFile
{
public:
    /// Opens a file for reading, whoever owns it. Links are followed.
    static CheckedFile ofAnybody(const QString &path);

    /**
     * Opens a trusted file or folder.
     *
     * @param top the folder that it must be in or be itself; null for the folder of the path. Links
     *        that lead out of it are refused.
     */
    static CheckedFile trusted(const QString &path, FileUse use = FileUse::Read,
                               const QString &top = {});

    /// Opens a trusted file of this folder, which must have been opened as a trusted one.
    CheckedFile file(const QString &name) const;

    ~CheckedFile();
    CheckedFile(CheckedFile &&other) noexcept;
    CheckedFile(const CheckedFile &) = delete;
    CheckedFile &operator=(const CheckedFile &) = delete;
    CheckedFile &operator=(CheckedFile &&) = delete;

    /// Why it cannot be used, to be shown after its name ("is missing"); null when it can.
    const QString &fault() const { return mFault; }
    /// Whether nothing of that name exists, not even a dangling link.
    bool isMissing() const { return mIsMissing; }
    /// The real path, without links, of a trusted file or folder that was found; else the given
    /// one.
    QString path() const;

    /// Reads the whole file. When it is larger than that many bytes, or cannot be read, the result
    /// is null and fault() tells why.
    QByteArray read(qint64 greatestSize);

private:
    CheckedFile() = default;
    bool refuse(const QString &fault);
    bool refuseUnreachable(int error);
    /// Opens a name in a folder, by its descriptor; false when that is refused.
    bool open(int folder, const QByteArray &name, FileUse use, int linkFlags, struct stat &status);
    /// Opens the real path, all of which must be trusted.
    bool walk(const QByteArray &top, FileUse use);

    int mDescriptor = -1;
    QByteArray mPath;
    QString mFault;
    bool mIsMissing = false;
};
