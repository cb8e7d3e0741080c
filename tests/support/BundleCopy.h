// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Bundle.h"
#include "support/MemoryFolder.h"

#include <QString>
#include <QTemporaryDir>

/// The built bundle in a folder of its own, where a test may spoil it.
class BundleCopy
{
public:
    BundleCopy();

    /// Opens the copy with its English texts; null when copying has failed.
    std::shared_ptr<Bundle> open() const;

    /// The nib's form; null when it cannot be read.
    QByteArray nib() const;
    /// Writes another form; a null one takes the nib away.
    bool setNib(const QByteArray &form) const;

    /// Replaces a text of the nib everywhere. False when the nib does not have it.
    bool replaceInNib(const QString &text, const QString &by) const;
    /// Takes the control of that name out of the nib; the view itself gets another name instead.
    bool removeOutlet(const QString &name) const;
    /// Deletes a file of the resources.
    bool removeResource(const QString &fileName) const;

private:
    QString resources() const;
    QString nibPath() const;

    QTemporaryDir mFolder{memoryFolderPattern(QStringLiteral("bundle"))};
    bool mIsCopied = false;
};
