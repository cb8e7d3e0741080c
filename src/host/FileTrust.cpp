#include "host/FileTrust.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <unistd.h>

namespace {
constexpr mode_t writableByOthers = S_IWGRP | S_IWOTH;
constexpr mode_t permissions = 07777;
} // namespace

QString distrust(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0) {
        return {};
    }
    if (status.st_uid != 0 && status.st_uid != geteuid()) {
        return QStringLiteral("%1 belongs to another user (%2)").arg(path).arg(status.st_uid);
    }
    if ((status.st_mode & writableByOthers) != 0) {
        return QStringLiteral("%1 can be written by others (mode %2)")
            .arg(path, QString::number(status.st_mode & permissions, 8));
    }
    return {};
}

QString distrust(const QString &folder, const QString &file)
{
    const QString top = QFileInfo(folder).canonicalFilePath();
    QString path = QFileInfo(file).canonicalFilePath();
    if (top.isEmpty() || path.isEmpty()) {
        return {};
    }
    if (!path.startsWith(top + u'/')) {
        return QStringLiteral("%1 is not in %2 but in %3")
            .arg(file, folder, QFileInfo(path).path());
    }
    while (path != top) {
        QString fault = distrust(path);
        if (!fault.isNull()) {
            return fault;
        }
        path = QFileInfo(path).path();
    }
    return distrust(top);
}
