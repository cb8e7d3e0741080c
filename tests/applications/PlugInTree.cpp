// SPDX-License-Identifier: Apache-2.0
#include "PlugInTree.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <algorithm>

namespace {
constexpr auto everything = QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot;

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
        return copyFolder(from.filePath(folder), mFolder.filePath(folder));
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
    const QDir libraries(QStringLiteral(KV_LIBRARIES));
    const QDir place(folder);
    return copyFolder(libraries.filePath(u"kvprint"_s), place.filePath(u"kvprint"_s)) &&
           copyFolder(libraries.filePath(u"kvprint"_s), folder) &&
           copyFolder(libraries.filePath(u"kvprint/pde/KVMQRVOptions.pde"_s),
                      place.filePath(u"KVMQRVOptions.pde"_s));
}
