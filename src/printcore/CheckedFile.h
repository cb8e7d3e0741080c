#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>

struct stat;

/// What a file or folder is opened for.
enum class FileUse { Read, Enter, List };

/**
 * A file or folder that is looked at before it is opened, and used through what was opened.
 *
 * Nothing but a regular file or a folder is opened: a pipe would keep whoever opens it waiting, and
 * devices do things when they are opened. What lies at the path is looked at first and what has
 * been opened again, so that it does not matter whether something else was put there in between.
 *
 * A trusted file is one that nobody but root and the user can change: these two own it and every
 * folder on the way to it, and no group and not everybody can write to them. The way is the real
 * path, from the root folder down, one name at a time: each folder is opened relative to the one
 * before it, without following links, and asked through its descriptor. Who cannot write to a
 * folder cannot exchange what its names lead to. So path() goes on leading to what was checked
 * until root or the user changes that, and may be handed to what opens files by their path alone,
 * such as the dynamic linker, with all its links resolved.
 *
 * Above the top folder, which is where the files that belong together begin, two more kinds of
 * folders pass, as nobody else can exchange what is of root's and the user's in them: those with
 * the sticky bit, such as /tmp, and those that the user's own group can write to, which has the
 * user's number. Where that group has other members they are trusted like the user.
 */
class KVPRINTCORE_EXPORT CheckedFile
{
public:
    /// Opens a file, whosever it is, for reading. Links are followed.
    static CheckedFile ofAnybody(const QString &path);

    /**
     * Opens a trusted file or folder.
     *
     * @param top the folder that it must be in, or be itself; the one that the path names when
     * null. Links that lead out of it are refused.
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

    /// What keeps it from being used, to be said behind its name ("is missing"); null when nothing
    /// does.
    const QString &fault() const { return mFault; }
    /// Whether there is nothing of that name, not even a link that leads nowhere.
    bool isMissing() const { return mIsMissing; }
    /// Of a trusted file or folder the real path, without links, when it was found.
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
