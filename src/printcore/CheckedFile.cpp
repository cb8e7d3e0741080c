// SPDX-License-Identifier: Apache-2.0
#include "printcore/CheckedFile.h"

#include "printcore/QtVersions.h"

#include <QByteArrayList>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr mode_t writableByOthers = S_IWGRP | S_IWOTH;
constexpr mode_t permissions = 07777;

struct Demand
{
    mode_t kind;
    int flags;
};

/// In the order of FileUse. Without O_NONBLOCK a pipe that has just been put there would block.
constexpr Demand demands[] = {
    {S_IFREG, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC},
    {S_IFDIR, O_PATH | O_DIRECTORY | O_CLOEXEC},
    {S_IFDIR, O_RDONLY | O_DIRECTORY | O_CLOEXEC},
};

struct Kind
{
    mode_t kind;
    const char *name;
};

constexpr Kind kinds[] = {
    {S_IFREG, "a file"},   {S_IFDIR, "a folder"}, {S_IFIFO, "a pipe"}, {S_IFSOCK, "a socket"},
    {S_IFCHR, "a device"}, {S_IFBLK, "a device"}, {S_IFLNK, "a link"},
};

QString because(const char *fault, int error)
{
    return QStringLiteral("%1: %2").arg(QLatin1String(fault), qt_error_string(error));
}

/// Null when the mode is of the kind that is wanted.
QString wrongKind(mode_t mode, mode_t wanted)
{
    QString name;
    for (const Kind &kind : kinds) {
        if ((mode & S_IFMT) == kind.kind && kind.kind != wanted) {
            name = QStringLiteral("is ") + QLatin1String(kind.name);
        }
    }
    return name;
}

/// Who but root and the user could change a file or folder; null when nobody could.
QString distrust(const struct stat &status)
{
    if (status.st_uid != 0 && status.st_uid != geteuid()) {
        return QStringLiteral("belongs to another user (%1)").arg(status.st_uid);
    }
    if ((status.st_mode & writableByOthers) != 0) {
        return QStringLiteral("can be written by others (mode %1)")
            .arg(QString::number(status.st_mode & permissions, 8));
    }
    return {};
}

/// Whether others who can write to the folder can still not exchange what is not theirs in it.
bool keepsOwnersApart(const struct stat &status)
{
    const bool isOurs = status.st_uid == 0 || status.st_uid == geteuid();
    const bool isOwnGroups = (status.st_mode & S_IWOTH) == 0 && status.st_gid == geteuid();
    return isOurs && ((status.st_mode & S_ISVTX) != 0 || isOwnGroups);
}

/// Empty when the path leads nowhere; errno tells why.
QByteArray realPath(const QByteArray &path)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(path.constData(), nullptr),
                                                           &std::free);
    return QByteArray(real.get());
}

/// The folder that a path names its file in.
QByteArray folderOf(const QByteArray &path)
{
    return QFile::encodeName(QFileInfo(QFile::decodeName(path)).path());
}

bool isWithin(const QByteArray &top, const QByteArray &path)
{
    return path.startsWith(top) &&
           (path.size() == top.size() || top == "/" || path.at(top.size()) == '/');
}
} // namespace

CheckedFile::~CheckedFile()
{
    if (mDescriptor >= 0) {
        close(mDescriptor);
    }
}

CheckedFile::CheckedFile(CheckedFile &&other) noexcept
    : mDescriptor(std::exchange(other.mDescriptor, -1))
    , mPath(std::move(other.mPath))
    , mFault(std::move(other.mFault))
    , mIsMissing(other.mIsMissing)
{
}

QString CheckedFile::path() const
{
    return QFile::decodeName(mPath);
}

bool CheckedFile::refuse(const QString &fault)
{
    mFault = fault;
    return false;
}

bool CheckedFile::refuseUnreachable(int error)
{
    if (error != ENOENT) {
        return refuse(because("cannot be reached", error));
    }
    struct stat status = {};
    mIsMissing = lstat(mPath.constData(), &status) != 0;
    return refuse(mIsMissing ? QStringLiteral("is missing")
                             : QStringLiteral("is a link to %1, which is missing")
                                   .arg(QFile::symLinkTarget(path())));
}

bool CheckedFile::open(int folder, const QByteArray &name, FileUse use, int linkFlags,
                       struct stat &status)
{
    const Demand &demand = demands[int(use)];
    if (fstatat(folder, name.constData(), &status, linkFlags) != 0) {
        return refuseUnreachable(errno);
    }
    QString kind = wrongKind(status.st_mode, demand.kind);
    if (!kind.isNull()) {
        return refuse(kind);
    }
    const int noLinks = linkFlags == AT_SYMLINK_NOFOLLOW ? O_NOFOLLOW : 0;
    mDescriptor = openat(folder, name.constData(), demand.flags | noLinks);
    if (mDescriptor < 0 || fstat(mDescriptor, &status) != 0) {
        return refuse(because("cannot be read", errno));
    }
    kind = wrongKind(status.st_mode, demand.kind);
    return kind.isNull() || refuse(kind);
}

CheckedFile CheckedFile::ofAnybody(const QString &path)
{
    CheckedFile file;
    file.mPath = QFile::encodeName(path);
    struct stat status = {};
    file.open(AT_FDCWD, file.mPath, FileUse::Read, 0, status);
    return file;
}

bool CheckedFile::walk(const QByteArray &top, FileUse use)
{
    QByteArrayList names = mPath.split('/');
    names.removeAll(QByteArray());
    struct stat status = {};
    QByteArray place = "/";
    bool isOpen = open(AT_FDCWD, place, names.isEmpty() ? use : FileUse::Enter, 0, status);
    while (isOpen) {
        const bool mayPass = !isWithin(top, place) && keepsOwnersApart(status);
        const QString fault = mayPass ? QString() : distrust(status);
        if (!fault.isNull()) {
            return refuse(
                names.isEmpty()
                    ? fault
                    : QStringLiteral("is in %1, which %2").arg(QFile::decodeName(place), fault));
        }
        if (names.isEmpty()) {
            return true;
        }
        const QByteArray name = names.takeFirst();
        place += (place.endsWith('/') ? "" : "/") + name;
        const int folder = std::exchange(mDescriptor, -1);
        isOpen =
            open(folder, name, names.isEmpty() ? use : FileUse::Enter, AT_SYMLINK_NOFOLLOW, status);
        close(folder);
    }
    return false;
}

CheckedFile CheckedFile::trusted(const QString &path, FileUse use, const QString &top)
{
    CheckedFile file;
    file.mPath = QFile::encodeName(path);
    const QByteArray named = file.mPath;
    const QByteArray real = realPath(named);
    if (real.isEmpty()) {
        file.refuseUnreachable(errno);
        return file;
    }
    const QByteArray namedTop = top.isNull() ? folderOf(named) : QFile::encodeName(top);
    const QByteArray realTop = namedTop == named ? real : realPath(namedTop);
    if (realTop.isEmpty() || !isWithin(realTop, real)) {
        file.refuse(QStringLiteral("is not in %1 but in %2")
                        .arg(QFile::decodeName(realTop), QFile::decodeName(folderOf(real))));
        return file;
    }
    file.mPath = real;
    struct stat status = {};
    if (!file.walk(realTop, use)) {
        if (realPath(folderOf(named)) + '/' + QFile::encodeName(QFileInfo(path).fileName()) !=
            real) {
            file.refuse(QStringLiteral("is a link to %1, which %2").arg(file.path(), file.mFault));
        }
    } else if (use != FileUse::Read && fstatat(file.mDescriptor, ".", &status, 0) != 0) {
        file.refuse(because("cannot be read", errno));
    }
    return file;
}

CheckedFile CheckedFile::file(const QString &name) const
{
    CheckedFile file;
    file.mPath = mPath + '/' + QFile::encodeName(name);
    if (!mFault.isNull()) {
        file.mFault = mFault;
        file.mIsMissing = mIsMissing;
        return file;
    }
    const QByteArray entry = QFile::encodeName(name);
    struct stat status = {};
    if (fstatat(mDescriptor, entry.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
        S_ISLNK(status.st_mode)) {
        return trusted(file.path(), FileUse::Read, path());
    }
    if (file.open(mDescriptor, entry, FileUse::Read, AT_SYMLINK_NOFOLLOW, status)) {
        file.mFault = distrust(status);
    }
    return file;
}

QByteArray CheckedFile::read(qint64 greatestSize)
{
    if (!mFault.isNull()) {
        return {};
    }
    struct stat status = {};
    bool isTooLarge = fstat(mDescriptor, &status) == 0 && status.st_size > greatestSize;
    QByteArray bytes("");
    char part[16 * 1024];
    ssize_t size = 0;
    while (!isTooLarge && (size = ::read(mDescriptor, part, sizeof(part))) > 0) {
        bytes.append(part, QtSize(size));
        isTooLarge = bytes.size() > greatestSize;
    }
    if (isTooLarge || size < 0) {
        refuse(isTooLarge ? QStringLiteral("has more than %1 bytes").arg(greatestSize)
                          : because("cannot be read", errno));
        return {};
    }
    return bytes;
}
