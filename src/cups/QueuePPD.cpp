// SPDX-License-Identifier: Apache-2.0
#include "cups/QueuePPD.h"

#include "cups/PPDFile.h"

namespace {
/// With encryption, and with who the user is.
constexpr int attempts = 3;

/// The answer's status; HTTP_STATUS_ERROR when there was none.
http_status_t getOnce(http_t *http, const QueuePPD &known, const QByteArray &resource)
{
    httpClearFields(http);
    httpSetField(http, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(http));
    if (!known.text.isNull() && known.modified != 0) {
        char date[64] = {};
        httpGetDateString2(known.modified, date, sizeof date);
        const QByteArray condition =
            QByteArray(date) + ";length=" + QByteArray::number(known.text.size());
        httpSetField(http, HTTP_FIELD_IF_MODIFIED_SINCE, condition.constData());
    }
    if (httpGet(http, resource.constData()) != 0) {
        return HTTP_STATUS_ERROR;
    }
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE) {
        status = httpUpdate(http);
    }
    return status;
}

/// That, with what the scheduler asks for before it answers: who the user is, or encryption.
http_status_t get(SchedulerConnection &scheduler, const QueuePPD &known, const QByteArray &resource)
{
    http_t *http = scheduler.open(nullptr);
    bool isOpen = true;
    http_status_t status = HTTP_STATUS_ERROR;
    for (int attempt = 0; isOpen && attempt < attempts; ++attempt) {
        status = getOnce(http, known, resource);
        if (status == HTTP_STATUS_UNAUTHORIZED) {
            httpFlush(http);
            isOpen = cupsDoAuthentication(http, "GET", resource.constData()) == 0 &&
                     scheduler.reconnect();
        } else if (status == HTTP_STATUS_UPGRADE_REQUIRED) {
            httpFlush(http);
            isOpen = scheduler.reconnect() && httpEncryption(http, HTTP_ENCRYPTION_REQUIRED) == 0;
        } else {
            break;
        }
    }
    return status;
}

/// Reads the answer's content; null, with the reason in the error, when it is not whole.
QByteArray readContent(SchedulerConnection &scheduler, QString *error)
{
    http_t *http = scheduler.open(error);
    QByteArray content("");
    char buffer[16384];
    for (;;) {
        const ssize_t count = httpRead2(http, buffer, sizeof buffer);
        if (count <= 0) {
            break;
        }
        content.append(buffer, int(count));
        if (content.size() > mostBytesOfPPD) {
            *error = QStringLiteral("is longer than %1 bytes").arg(mostBytesOfPPD);
            return {};
        }
    }
    // Only behind the last byte of an answer libcups waits for the next request.
    if (httpGetState(http) != HTTP_STATE_WAITING) {
        *error = scheduler.isSilent()
                     ? scheduler.fault()
                     : QStringLiteral("the scheduler's answer breaks off after %1 bytes")
                           .arg(content.size());
        return {};
    }
    return content;
}
} // namespace

QueuePPD::Answer QueuePPD::update(SchedulerConnection &scheduler, const QString &queue,
                                  QString *error)
{
    http_t *http = scheduler.open(error);
    if (!http) {
        return Answer::Failed;
    }
    // libcups encodes it.
    const QByteArray resource = "/printers/" + queue.toUtf8() + ".ppd";
    const http_status_t status = get(scheduler, *this, resource);
    if (status == HTTP_STATUS_OK) {
        const time_t date = httpGetDateTime(httpGetField(http, HTTP_FIELD_LAST_MODIFIED));
        const QByteArray content = readContent(scheduler, error);
        if (content.isNull()) {
            return Answer::Failed;
        }
        *this = {content, date};
        return Answer::Sent;
    }
    httpFlush(http);
    if (status == HTTP_STATUS_NOT_MODIFIED) {
        return Answer::Unchanged;
    }
    if (status == HTTP_STATUS_NOT_FOUND) {
        *this = {};
        return Answer::None;
    }
    *error = scheduler.isSilent()          ? scheduler.fault()
             : status == HTTP_STATUS_ERROR ? QStringLiteral("the scheduler breaks off")
                                           : QString::fromUtf8(httpStatus(status));
    return Answer::Failed;
}
