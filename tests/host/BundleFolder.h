// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/MemoryFolder.h"

#include <QMetaType>
#include <QString>
#include <QTemporaryDir>

#include <functional>

/// A folder of bundles in which a test may spoil the copy of the built one.
class BundleFolder
{
public:
    BundleFolder();

    /// Copies the built bundle into the folder under this name; false when that fails.
    bool add(const QString &name = u"Spoilt.pde"_s) const;

    /// Adds a bundle whose one panel is odd in the way of its kind; false when that fails.
    bool addOdd(const QString &name, const QString &kind) const;

    QString path() const { return mFolder.path(); }
    /// The path of a file of the first copy, "Contents/…" in front included; empty for the copy.
    QString path(const QString &file) const;

    /// Removes a file, or a folder with all that is in it.
    bool remove(const QString &file) const;
    bool overwrite(const QString &file, const QByteArray &bytes) const;
    /// Adds a file, with the folders that lead to it.
    bool create(const QString &file, const QByteArray &bytes) const;
    /// Cuts the file after so many bytes.
    bool truncate(const QString &file, qint64 size) const;
    /// Makes the file that large, without a byte in it.
    bool enlarge(const QString &file, qint64 size) const;
    /// Puts a copy of another file in the file's place.
    bool replace(const QString &file, const QString &by) const;
    /// Puts an empty folder, a pipe, or a link in the place of a file or folder.
    bool replaceByFolder(const QString &file) const;
    bool replaceByPipe(const QString &file) const;
    bool replaceByLink(const QString &file, const QString &target) const;
    bool setMode(const QString &file, unsigned int mode) const;

private:
    QTemporaryDir mFolder{memoryFolderPattern(u"bundle"_s)};
};

/// A change to a bundle; answers false when it fails.
using BundleChange = std::function<bool(const BundleFolder &)>;
Q_DECLARE_METATYPE(BundleChange)

/// The change that one of the folder's functions makes with these arguments.
template <typename... Parameters, typename... Arguments>
BundleChange changing(bool (BundleFolder::*function)(Parameters...) const, Arguments... arguments)
{
    return [=](const BundleFolder &folder) {
        return (folder.*function)(arguments...);
    };
}
