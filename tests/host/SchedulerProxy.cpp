// SPDX-License-Identifier: Apache-2.0
#include "SchedulerProxy.h"

#include <cups/cups.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {
constexpr std::chrono::milliseconds look = 20ms;
constexpr char endOfHead[] = "\r\n\r\n";
constexpr char whoAreYou[] = "HTTP/1.1 401 Unauthorized\r\n"
                             "WWW-Authenticate: Local trc=\"y\"\r\n"
                             "Content-Length: 0\r\n\r\n";

sockaddr_in onLoopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(std::uint16_t(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

bool send(int to, const char *bytes, ssize_t size)
{
    while (size > 0) {
        const ssize_t sent = ::send(to, bytes, std::size_t(size), MSG_NOSIGNAL);
        if (sent <= 0) {
            return false;
        }
        bytes += sent;
        size -= sent;
    }
    return true;
}
} // namespace

SchedulerProxy::SchedulerProxy(const QByteArray &scheduler)
    : mScheduler(scheduler)
    , mListener(socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address = onLoopback(0);
    socklen_t size = sizeof address;
    const auto any = reinterpret_cast<sockaddr *>(&address);
    if (bind(mListener, any, size) == 0 && listen(mListener, SOMAXCONN) == 0 &&
        getsockname(mListener, any, &size) == 0) {
        mAddress = "127.0.0.1:" + QByteArray::number(ntohs(address.sin_port));
        cupsSetServer(mAddress.constData());
    }
    mThread = std::thread([this] { acceptAll(); });
}

SchedulerProxy::~SchedulerProxy()
{
    cupsSetServer(mScheduler.constData());
    mIsStopping = true;
    mThread.join();
    close(mListener);
}

void SchedulerProxy::acceptAll()
{
    std::vector<std::thread> connections;
    pollfd listener{mListener, POLLIN, 0};
    while (!mIsStopping) {
        if (poll(&listener, 1, int(look.count())) > 0) {
            const int client = accept4(mListener, nullptr, nullptr, SOCK_CLOEXEC);
            connections.emplace_back(
                [this, client, isSilent = mIsSilent.load()] { forward(client, isSilent); });
        }
    }
    for (std::thread &connection : connections) {
        connection.join();
    }
}

void SchedulerProxy::pause(std::chrono::milliseconds time) const
{
    const auto end = std::chrono::steady_clock::now() + time;
    while (!mIsStopping && std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(look);
    }
}

void SchedulerProxy::forward(int client, bool isSilent)
{
    const int server = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = onLoopback(mScheduler.mid(mScheduler.lastIndexOf(':') + 1).toInt());
    bool isOpen = connect(server, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    std::array<pollfd, 2> ends{{{client, POLLIN, 0}, {server, POLLIN, 0}}};
    std::array<char, 4096> bytes{};
    // What is left of the answer that is to be cut; −1 while there is none.
    int left = -1;
    int number = 0;
    const int closings = mClosings;
    while (isOpen && !mIsStopping && closings == mClosings) {
        if (poll(ends.data(), ends.size(), int(look.count())) <= 0) {
            continue;
        }
        const bool isRequest = (ends[0].revents & (POLLIN | POLLHUP)) != 0;
        ssize_t size = recv(isRequest ? client : server, bytes.data(), bytes.size(), 0);
        isOpen = size > 0;
        if (isRequest && isOpen) {
            QByteArray request(bytes.data(), int(size));
            if (request.startsWith("GET ") || request.startsWith("POST ")) {
                number = ++mRequests;
                isSilent = number > mAnswered || isSilent;
                isOpen = number <= mUnbroken;
                const bool isForPPD = request.contains(".ppd HTTP");
                left = isForPPD ? int(mCut) : -1;
                pause(mDelay);
                if (isForPPD && mAsksWho && !request.contains("Authorization: Local local")) {
                    send(client, whoAreYou, std::strlen(whoAreYou));
                    continue;
                }
            }
            if (number == mMisnamed) {
                request.replace("/printers/", "/printerz/");
                std::copy(request.begin(), request.end(), bytes.begin());
            }
        } else if (isOpen && left >= 0) {
            size = std::min<ssize_t>(size, left);
            left -= int(size);
            isOpen = left > 0;
            send(client, bytes.data(), size);
            continue;
        }
        const QByteArray answer(bytes.data(), isRequest || !isOpen ? 0 : int(size));
        if (const int head = int(answer.indexOf("HTTP/1.1 200"));
            head >= 0 && mContentDelay.load() > 0ms) {
            const int content = int(answer.indexOf(endOfHead, head)) + int(std::strlen(endOfHead));
            send(client, answer.constData(), content);
            pause(mContentDelay);
            isOpen = send(client, answer.constData() + content, size - content);
            continue;
        }
        if (isOpen && (isRequest || !isSilent)) {
            isOpen = send(isRequest ? server : client, bytes.data(), size);
        }
    }
    close(server);
    close(client);
}
