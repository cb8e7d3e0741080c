// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

#include <cups/cups.h>

#include <chrono>

/// The address of the print scheduler and the user's name, which libcups keeps for each thread.
struct SchedulerAddress
{
    /// The values of the calling thread.
    static SchedulerAddress ofThisThread();
    /// Makes libcups use these values in the calling thread, and not ask for passwords.
    void use() const;
    /// Makes libcups use only the server, its port and the IPP version.
    void useServer() const;

    /// A host's name or address, or the path of a socket.
    QByteArray server;
    int port = 0;
    /// The version of IPP in which the server is asked ("2.0").
    QByteArray version;
    http_encryption_t encryption = HTTP_ENCRYPTION_IF_REQUESTED;
    QByteArray user;
};

/// As long as this object lives, libcups opens no connections of its own in the calling thread. It
/// would do so after a failure on our connection, and wait there without a time limit.
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
     * @param limit how long the scheduler may be silent; behind the head of an answer, twice as
     *        long.
     * @param isCancelled refuses to connect when it is no longer 0, and ends connecting within a
     *        quarter of a second, except for looking up the server's name and negotiating
     *        encryption; must outlive the connection, and may be null. Waiting for an answer goes
     *        on up to the limit.
     */
    explicit SchedulerConnection(Milliseconds limit = defaultLimit, int *isCancelled = nullptr);
    ~SchedulerConnection();
    SchedulerConnection(const SchedulerConnection &) = delete;
    SchedulerConnection &operator=(const SchedulerConnection &) = delete;

    /// The open connection, owned by this object; null when the scheduler cannot be reached.
    ///
    /// @param error set to the reason; may be null.
    http_t *open(QString *error);

    /// Connects again, which ends any request on the connection; false when the scheduler cannot be
    /// reached.
    bool reconnect();

    /// Whether the scheduler has been silent for too long.
    bool isSilent() const { return mIsSilent; }

    /// Why the last request has failed: that the scheduler is silent or breaks off, else
    /// what libcups says.
    QString fault() const;

private:
    /// Called by libcups when nothing has arrived for the limit: whether to go on waiting.
    static int waitOn(http_t *http, void *connection);

    const Milliseconds mLimit;
    int *const mIsCancelled;
    http_t *mHTTP = nullptr;
    bool mIsSilent = false;
};
