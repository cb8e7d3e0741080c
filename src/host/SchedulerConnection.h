#pragma once

#include <QByteArray>
#include <QString>

#include <cups/cups.h>

#include <chrono>

/// Where the print scheduler is and who asks it: what libcups knows for each thread by itself.
struct SchedulerAddress
{
    /// What libcups knows in the calling thread.
    static SchedulerAddress ofThisThread();
    /// Has libcups use this address in the calling thread, and ask for no password.
    void use() const;
    /// Has libcups use the server, its port and the version of requests alone.
    void useServer() const;

    /// A host's name or address, or the path of a socket.
    QByteArray server;
    int port = 0;
    /// The version of IPP in which the server is asked ("2.0").
    QByteArray version;
    http_encryption_t encryption = HTTP_ENCRYPTION_IF_REQUESTED;
    QByteArray user;
};

/// While it lives, libcups opens no connections of its own in the calling thread: it does so behind
/// a failure on ours, and waits there without a limit.
class NoOtherConnections
{
public:
    NoOtherConnections();
    ~NoOtherConnections();
    NoOtherConnections(const NoOtherConnections &) = delete;
    NoOtherConnections &operator=(const NoOtherConnections &) = delete;

private:
    SchedulerAddress mAddress;
};

/**
 * A connection to the print scheduler that ends when the scheduler is silent for too long.
 *
 * Opened when it is first needed. Belongs to one thread. A call of libcups' that makes several
 * requests may connect again in between, for which libcups takes up to 30 seconds when the host is
 * gone.
 */
class SchedulerConnection
{
public:
    using Milliseconds = std::chrono::milliseconds;
    static constexpr Milliseconds defaultLimit{10'000};

    /**
     * @param limit how long the scheduler may be silent, to the second.
     * @param isCancelled ends all waiting within a quarter of a second once it is not 0, but for
     *        the server's name to be looked up and for encryption to be agreed on; must outlive the
     *        connection, and may be null.
     */
    explicit SchedulerConnection(Milliseconds limit = defaultLimit, int *isCancelled = nullptr);
    ~SchedulerConnection();
    SchedulerConnection(const SchedulerConnection &) = delete;
    SchedulerConnection &operator=(const SchedulerConnection &) = delete;

    /// The open connection, owned by this object; null, with the reason in @p error, which may be
    /// null, when the scheduler cannot be reached.
    http_t *open(QString *error);

    /// Connects anew, which ends what was asked on the connection before; false when the scheduler
    /// cannot be reached.
    bool reconnect();

    /// Whether the scheduler has been silent for too long, or the waiting has been cancelled.
    bool isSilent() const { return mIsSilent; }

    /// Why the last request has failed: that the scheduler is silent or breaks off, else
    /// what libcups says.
    QString fault() const;

private:
    /// Called by libcups behind each slice of silence: whether to wait on.
    static int waitOn(http_t *http, void *connection);

    const Milliseconds mLimit;
    int *const mIsCancelled;
    http_t *mHTTP = nullptr;
    bool mIsSilent = false;
};
