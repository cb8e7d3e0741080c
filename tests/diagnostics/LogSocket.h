// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArrayList>
#include <QString>

/// A socket that takes a log's records, as a log daemon's does.
class LogSocket
{
public:
    /// A socket at a path that is free.
    explicit LogSocket(const QString &path);
    ~LogSocket();
    LogSocket(const LogSocket &) = delete;
    LogSocket &operator=(const LogSocket &) = delete;

    /// The records that have arrived since, waiting that long for the first one.
    QByteArrayList records(int milliseconds = 0);

private:
    int mSocket;
};
