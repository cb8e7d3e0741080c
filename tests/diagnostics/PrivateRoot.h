// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "LogSocket.h"

#include <QTemporaryDir>

#include <functional>

/// A root folder of the test's own, with a log daemon's socket in it.
class PrivateRoot
{
public:
    PrivateRoot();

    /// Whether this user may have one.
    static bool isPossible();

    /**
     * Does something in a child process that has this root folder.
     *
     * @param task answers whether it went as it should.
     * @return the task's answer; false when the child ends otherwise.
     */
    bool run(const std::function<bool()> &task);

    /// Same, without the right to write to the root folder.
    bool runWithoutRights(const std::function<bool()> &task);

    /// The records that the log has got.
    const QByteArrayList &records() const { return mRecords; }

    /// The path of a file in the root folder.
    QString path(const QString &name) const { return mFolder.filePath(name); }

    /// What lies in the root folder besides the devices, sorted.
    QStringList entries() const;

private:
    QTemporaryDir mFolder;
    LogSocket mLog;
    QByteArrayList mRecords;
};
