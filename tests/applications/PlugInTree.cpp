// SPDX-License-Identifier: Apache-2.0
#include "PlugInTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>
#include <filesystem>

namespace {
constexpr auto everything = QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot;

bool copyFolder(const QString &name, const QDir &from, const QDir &to)
{
    QDirIterator files(from.filePath(name), QDir::Files, QDirIterator::Subdirectories);
    bool copied = false;
    while (files.hasNext()) {
        const QString file = files.next();
        const QString target = to.filePath(from.relativeFilePath(file));
        copied = QDir().mkpath(QFileInfo(target).path()) && QFile::copy(file, target);
        if (!copied) {
            return false;
        }
    }
    return copied;
}

QStringList ownFolders(const QDir &libraries)
{
    return libraries.entryList({u"qt*"_s, u"kvprint"_s}, QDir::Dirs);
}
} // namespace

PlugInTree::PlugInTree()
{
    const QDir from(QStringLiteral(KV_LIBRARIES));
    const QStringList all = ownFolders(from);
    mIsCopied = std::all_of(all.begin(), all.end(), [&](const QString &folder) {
        return copyFolder(folder, from, QDir(mFolder.path()));
    });
}

QStringList PlugInTree::matching(const QString &pattern) const
{
    const QRegularExpression wanted(pattern + QLatin1Char('$'));
    QStringList paths;
    QDirIterator entries(mFolder.path(), everything, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        if (wanted.match(path).hasMatch()) {
            paths.append(path);
        }
    }
    return paths;
}

bool PlugInTree::remove(const QString &pattern) const
{
    const QStringList paths = matching(pattern);
    return !paths.isEmpty() && std::all_of(paths.begin(), paths.end(), [](const QString &path) {
        return QFileInfo(path).isDir() ? QDir(path).removeRecursively() : QFile::remove(path);
    });
}

bool PlugInTree::overwrite(const QString &pattern, const QByteArray &bytes) const
{
    const QStringList paths = matching(pattern);
    return !paths.isEmpty() &&
           std::all_of(paths.begin(), paths.end(), [&bytes](const QString &path) {
               QFile file(path);
               return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
           });
}

bool PlugInTree::addDecoys(const QString &folder)
{
    namespace fs = std::filesystem;
    const fs::path libraries = QFile::encodeName(QStringLiteral(KV_LIBRARIES)).toStdString();
    const fs::path place = QFile::encodeName(folder).toStdString();
    std::error_code error;
    for (const char *name : {"kvprint", "kvprint/pde", "kvprint/pde/KVMQRVOptions.pde"}) {
        const fs::path source = libraries / name;
        fs::copy(source, place / source.filename(), fs::copy_options::recursive, error);
        if (error) {
            return false;
        }
    }
    const QDir from(QStringLiteral(KV_LIBRARIES "/kvprint"));
    const QStringList files = from.entryList(QDir::Files);
    return std::all_of(files.begin(), files.end(), [&](const QString &file) {
        return QFile::copy(from.filePath(file), folder + QLatin1Char('/') + file);
    });
}
