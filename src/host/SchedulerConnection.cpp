#include "host/SchedulerConnection.h"

#include <algorithm>
#include <ctime>

using namespace std::chrono_literals;

namespace {
/// How long libcups waits at a time.
constexpr std::chrono::milliseconds slice = 100ms;

constexpr std::chrono::milliseconds connectLimit = 5s;

/// Nobody is there to type a password.
const char *noPassword(const char * /*prompt*/, http_t * /*http*/, const char * /*method*/,
                       const char * /*resource*/, void * /*user*/)
{
    return nullptr;
}
} // namespace

SchedulerAddress SchedulerAddress::ofThisThread()
{
    return {cupsServer(), ippPort(), cupsEncryption(), cupsUser()};
}

void SchedulerAddress::useServer() const
{
    // The port goes with the server's name.
    const bool isSocket = server.startsWith('/');
    const QByteArray withPort = isSocket ? server : server + ':' + QByteArray::number(port);
    cupsSetServer(withPort.constData());
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
    // No socket, and so refused at once.
    cupsSetServer("/dev/null");
}

NoOtherConnections::~NoOtherConnections()
{
    mAddress.useServer();
}

SchedulerConnection::SchedulerConnection(Milliseconds limit, const std::atomic_bool *isCancelled)
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
                             int(limit.count()), nullptr);
        if (mHTTP) {
            httpSetTimeout(mHTTP, std::chrono::duration<double>(slice).count(), waitOn, this);
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
           httpReconnect2(mHTTP, int(std::min(mLimit, connectLimit).count()), nullptr) == 0;
}

QString SchedulerConnection::fault() const
{
    return mIsSilent ? QStringLiteral("the print scheduler at %1 does not answer")
                           .arg(QString::fromUtf8(cupsServer()))
                     : QString::fromUtf8(cupsLastErrorString());
}

int SchedulerConnection::waitOn(http_t *http, void *connection)
{
    auto *self = static_cast<SchedulerConnection *>(connection);
    const std::chrono::seconds silence(std::time(nullptr) - httpGetActivity(http));
    const bool isCancelled = self->mIsCancelled && *self->mIsCancelled;
    self->mIsSilent = self->mIsSilent || isCancelled || silence > self->mLimit;
    return self->mIsSilent ? 0 : 1;
}
