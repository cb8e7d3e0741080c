// SPDX-License-Identifier: Apache-2.0
#include "LogSocket.h"

#include <QFile>

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

LogSocket::LogSocket(const QString &path)
    : mSocket(socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0))
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, QFile::encodeName(path).constData(),
                 sizeof(address.sun_path) - 1);
    if (bind(mSocket, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) != 0) {
        qFatal("no socket at %s", address.sun_path);
    }
}

LogSocket::~LogSocket()
{
    close(mSocket);
}

QByteArrayList LogSocket::records(int milliseconds)
{
    pollfd readable = {mSocket, POLLIN, 0};
    poll(&readable, 1, milliseconds);
    QByteArrayList records;
    QByteArray buffer(1 << 20, Qt::Uninitialized);
    for (;;) {
        const ssize_t size =
            recv(mSocket, buffer.data(), std::size_t(buffer.size()), MSG_DONTWAIT | MSG_TRUNC);
        if (size < 0) {
            return records;
        }
        records += buffer.left(int(size));
    }
}
