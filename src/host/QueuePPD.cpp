#include "host/QueuePPD.h"

#include <QUrl>

namespace {
/// A PPD with pictures of its choices in 50 languages is still smaller.
constexpr int mostBytes = 16 << 20;

/// The answer's status; HTTP_STATUS_ERROR when there was none.
http_status_t get(http_t *http, const QueuePPD &known, const QByteArray &resource)
{
    httpClearFields(http);
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
        if (content.size() > mostBytes) {
            *error = QStringLiteral("is longer than %1 bytes").arg(mostBytes);
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
    const QByteArray resource = "/printers/" + QUrl::toPercentEncoding(queue) + ".ppd";
    const http_status_t status = get(http, *this, resource);
    if (status == HTTP_STATUS_OK) {
        modified = httpGetDateTime(httpGetField(http, HTTP_FIELD_LAST_MODIFIED));
        text = readContent(scheduler, error);
        return text.isNull() ? Answer::Failed : Answer::Sent;
    }
    httpFlush(http);
    if (status == HTTP_STATUS_NOT_MODIFIED) {
        return Answer::Unchanged;
    }
    if (status == HTTP_STATUS_NOT_FOUND) {
        text = QByteArray();
        return Answer::None;
    }
    *error = scheduler.isSilent()          ? scheduler.fault()
             : status == HTTP_STATUS_ERROR ? QStringLiteral("the scheduler breaks off")
                                           : QString::fromUtf8(httpStatus(status));
    return Answer::Failed;
}
