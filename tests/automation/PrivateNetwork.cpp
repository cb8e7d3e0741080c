// SPDX-License-Identifier: Apache-2.0
#include "PrivateNetwork.h"

#include <QFile>
#include <QTemporaryFile>

#include <cerrno>
#include <cstring>

#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {
bool startLoopback()
{
    const int socket = ::socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    ifreq request = {};
    std::strncpy(request.ifr_name, "lo", IFNAMSIZ - 1);
    request.ifr_flags = IFF_UP | IFF_RUNNING | IFF_LOOPBACK | IFF_MULTICAST;
    const bool isStarted = ioctl(socket, SIOCSIFFLAGS, &request) == 0;
    close(socket);
    return isStarted;
}

bool nameHost()
{
    QTemporaryFile hosts(QStringLiteral("/run/hosts-XXXXXX"));
    hosts.setAutoRemove(false);
    const QByteArray line = QByteArray("127.0.0.1 localhost ") + PrivateNetwork::announcedHost;
    return hosts.open() && hosts.write(line + '\n') > 0 && hosts.flush() &&
           hosts.setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther) &&
           mount(QFile::encodeName(hosts.fileName()).constData(), "/etc/hosts", nullptr, MS_BIND,
                 nullptr) == 0;
}
} // namespace

QString PrivateNetwork::enter()
{
    const bool isEntered = unshare(CLONE_NEWNET | CLONE_NEWNS) == 0 &&
                           mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
                           mount("none", "/run", "tmpfs", 0, nullptr) == 0 && startLoopback() &&
                           nameHost();
    return isEntered ? QString() : QString::fromLocal8Bit(std::strerror(errno));
}
