// SPDX-License-Identifier: Apache-2.0
#include "BundleFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>

BundleFolder::BundleFolder() = default;

bool BundleFolder::add(const QString &name) const
{
    return copyFolder(QStringLiteral(KV_BUNDLE_FOLDER "/KVMQRVOptions.pde"),
                      mFolder.filePath(name));
}

bool BundleFolder::addOdd(const QString &name, const QString &kind) const
{
    const QDir bundle(mFolder.filePath(name));
    QFile info(bundle.filePath(u"Contents/Info.json"_s));
    const QString entries = u"{ \"identifier\": \"com.korvane.test.odd\", "
                            "\"version\": \"1\", \"principalClass\": \"%1\", "
                            "\"libraries\": { \"qt%2\": \"libodd.so\" }, "
                            "\"resources\": [] }"_s;
    return bundle.mkpath(u"Contents/Linux"_s) && info.open(QIODevice::WriteOnly) &&
           info.write(entries.arg(kind).arg(QT_VERSION_MAJOR).toUtf8()) > 0 &&
           QFile::copy(QStringLiteral(KV_ODD_PANELS),
                       bundle.filePath(u"Contents/Linux/libodd.so"_s));
}

QString BundleFolder::path(const QString &file) const
{
    return QDir::cleanPath(mFolder.filePath(u"Spoilt.pde/"_s + file));
}

bool BundleFolder::remove(const QString &file) const
{
    const QFileInfo removed(path(file));
    return removed.isDir() ? QDir(removed.filePath()).removeRecursively()
                           : QFile::remove(removed.filePath());
}

bool BundleFolder::overwrite(const QString &file, const QByteArray &bytes) const
{
    QFile target(path(file));
    return target.exists() && target.open(QIODevice::WriteOnly) &&
           target.write(bytes) == bytes.size();
}

bool BundleFolder::create(const QString &file, const QByteArray &bytes) const
{
    QFile added(path(file));
    return QDir().mkpath(QFileInfo(added.fileName()).path()) && added.open(QIODevice::WriteOnly) &&
           added.write(bytes) == bytes.size();
}

bool BundleFolder::truncate(const QString &file, qint64 size) const
{
    QFile target(path(file));
    return target.size() > size && target.resize(size);
}

bool BundleFolder::enlarge(const QString &file, qint64 size) const
{
    return overwrite(file, "") && QFile(path(file)).resize(size);
}

bool BundleFolder::replace(const QString &file, const QString &by) const
{
    return remove(file) && QFile::copy(by, path(file));
}

bool BundleFolder::replaceByFolder(const QString &file) const
{
    return remove(file) && QDir().mkdir(path(file));
}

bool BundleFolder::replaceByPipe(const QString &file) const
{
    return remove(file) && mkfifo(QFile::encodeName(path(file)).constData(), 0644) == 0;
}

bool BundleFolder::replaceByLink(const QString &file, const QString &target) const
{
    return remove(file) && QFile::link(target, path(file));
}

bool BundleFolder::setMode(const QString &file, unsigned int mode) const
{
    return chmod(QFile::encodeName(path(file)).constData(), mode) == 0;
}
