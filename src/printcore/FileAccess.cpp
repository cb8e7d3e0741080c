#include "printcore/FileAccess.h"

#include <QFile>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {
struct Demand
{
    mode_t kind;
    int permissions;
};

/// In the order of FileAccess.
constexpr Demand demands[] = {{S_IFREG, R_OK}, {S_IFDIR, X_OK}, {S_IFDIR, R_OK | X_OK}};

struct Kind
{
    mode_t kind;
    const char *name;
};

constexpr Kind kinds[] = {
    {S_IFREG, "a file"},    {S_IFDIR, "a folder"}, {S_IFIFO, "a pipe"},
    {S_IFSOCK, "a socket"}, {S_IFCHR, "a device"}, {S_IFBLK, "a device"},
};

QString because(const char *fault, int error)
{
    return QStringLiteral("%1: %2").arg(QLatin1String(fault), qt_error_string(error));
}

QString absence(const QString &path)
{
    return isMissing(path) ? QStringLiteral("is missing")
                           : QStringLiteral("is a link to %1, which is missing")
                                 .arg(QFile::symLinkTarget(path));
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
} // namespace

bool isMissing(const QString &path)
{
    struct stat status = {};
    return lstat(QFile::encodeName(path).constData(), &status) != 0 && errno == ENOENT;
}

QString accessFault(const QString &path, FileAccess access)
{
    const Demand &demand = demands[int(access)];
    const QByteArray name = QFile::encodeName(path);
    struct stat status = {};
    if (stat(name.constData(), &status) != 0) {
        return errno == ENOENT ? absence(path) : because("cannot be reached", errno);
    }
    QString kind = wrongKind(status.st_mode, demand.kind);
    if (!kind.isNull()) {
        return kind;
    }
    return faccessat(AT_FDCWD, name.constData(), demand.permissions, AT_EACCESS) == 0
               ? QString()
               : because("cannot be read", errno);
}
