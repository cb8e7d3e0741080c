// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/MemoryFolder.h"

#include <QString>
#include <QTemporaryDir>

/// A copy of the built plug-ins, libraries and bundles, where a test may spoil them.
class PlugInTree
{
public:
    PlugInTree();

    /// Whether everything was copied.
    bool isCopied() const { return mIsCopied; }
    /// The folder of libraries, as it would be below a prefix.
    QString libraries() const { return mFolder.path(); }

    /// Removes the files and folders of the copy whose paths match the pattern; whether there were
    /// any.
    bool remove(const QString &pattern) const;
    /// Replaces the contents of the files whose paths match; whether there were any.
    bool overwrite(const QString &pattern, const QByteArray &bytes) const;
    /// The paths in the copy that match the pattern.
    QStringList matching(const QString &pattern) const;

    /// Puts copies of the bundles and libraries into a folder, wherever somebody could look for
    /// them who starts from it; whether they are all there.
    static bool addDecoys(const QString &folder);

private:
    QTemporaryDir mFolder{memoryFolderPattern(u"plugins"_s)};
    bool mIsCopied;
};
