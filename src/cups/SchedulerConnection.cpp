// SPDX-License-Identifier: Apache-2.0
#include "cups/SchedulerConnection.h"

#include <algorithm>

using namespace std::chrono_literals;

namespace {
constexpr std::chrono::milliseconds connectLimit = 5s;

/// Nobody is there to type a password.
const char *noPassword(const char * /*prompt*/, http_t * /*http*/, const char * /*method*/,
                       const char * /*resource*/, void * /*user*/)
{
    return nullptr;
}

/// libcups tells it of messages alone.
QByteArray versionOfRequests()
{
    ipp_t *message = ippNew();
    int minor = 0;
    const int major = ippGetVersion(message, &minor);
    ippDelete(message);
    return QByteArray::number(major) + '.' + QByteArray::number(minor);
}

/// As libcups reads it.
void setServer(const QByteArray &host, int port, const QByteArray &version)
{
    cupsSetServer((host + ':' + QByteArray::number(port) + "/version=" + version).constData());
}
} // namespace

SchedulerAddress SchedulerAddress::ofThisThread()
{
    return {cupsServer(), ippPort(), versionOfRequests(), cupsEncryption(), cupsUser()};
}

void SchedulerAddress::useServer() const
{
    if (server.startsWith('/')) {
        cupsSetServer(server.constData());
    } else {
        setServer(server, port, version);
    }
}

void SchedulerAddress::use() const
{
    useServer();
    cupsSetEncryption(encryption);
    cupsSetUser(user.constData());
    cupsSetPasswordCB2(noPassword, nullptr);
}

NoOtherConnections::NoOtherConnections()
    : mAddress(SchedulerAddress::ofThisThread())
{
    // No connection can be made to all hosts, so it is refused at once.
    setServer("255.255.255.255", mAddress.port, mAddress.version);
}

NoOtherConnections::~NoOtherConnections()
{
    mAddress.useServer();
}

SchedulerConnection::SchedulerConnection(Milliseconds limit, int *isCancelled)
    : mLimit(limit)
    , mIsCancelled(isCancelled)
{
}

SchedulerConnection::~SchedulerConnection()
{
    if (mHTTP) {
        httpClose(mHTTP);
    }
}

http_t *SchedulerConnection::open(QString *error)
{
    if (!mHTTP) {
        const auto limit = std::min(mLimit, connectLimit);
        mHTTP = httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                             int(limit.count()), mIsCancelled);
        if (mHTTP) {
            // The whole limit at a time: when the content of an answer comes later than its head,
            // libcups asks nobody whether to go on waiting.
            httpSetTimeout(mHTTP, std::chrono::duration<double>(mLimit).count(), waitOn, this);
        }
    }
    if (!mHTTP && error) {
        *error = QStringLiteral("no print scheduler answers at %1 (port %2): %3")
                     .arg(QString::fromUtf8(cupsServer()))
                     .arg(ippPort())
                     .arg(QString::fromUtf8(cupsLastErrorString()));
    }
    return mHTTP;
}

bool SchedulerConnection::reconnect()
{
    return mHTTP &&
           httpReconnect2(mHTTP, int(std::min(mLimit, connectLimit).count()), mIsCancelled) == 0;
}

QString SchedulerConnection::fault() const
{
    const QString server = QString::fromUtf8(cupsServer());
    if (mIsSilent) {
        return QStringLiteral("the print scheduler at %1 does not answer").arg(server);
    }
    // For that libcups has no text.
    if (mHTTP && httpError(mHTTP) != 0 && httpGetStatus(mHTTP) < HTTP_STATUS_BAD_REQUEST) {
        return QStringLiteral("the print scheduler at %1 breaks off").arg(server);
    }
    return QString::fromUtf8(cupsLastErrorString());
}

int SchedulerConnection::waitOn(http_t * /*http*/, void *connection)
{
    static_cast<SchedulerConnection *>(connection)->mIsSilent = true;
    return 0;
}
