// SPDX-License-Identifier: Apache-2.0
#include "cups/SchedulerJob.h"

#include "cups/IppAnswer.h"
#include "cups/PrintQueue.h"
#include "cups/SchedulerConnection.h"

#include <QUrl>

#include <algorithm>
#include <cstring>

namespace {
constexpr const char *attributesOfOne[] = {
    "job-id",    "job-k-octets",      "job-media-sheets-completed", "job-name",
    "job-state", "job-state-reasons", "job-printer-state-message",  "job-printer-uri",
};
/// Those that the scheduler knows of all jobs without reading the file of each.
constexpr const char *attributesOfMany[] = {"job-id", "job-k-octets", "job-name", "job-state"};

QByteArray uriOf(int job)
{
    return "ipp://localhost/jobs/" + QByteArray::number(job);
}

/// A request about a job or a queue, libcups' to delete once it is sent.
ipp_t *requestFor(ipp_op_t operation, const char *uriName, const QByteArray &uri)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, uriName, nullptr, uri.constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    return request;
}

template <int count>
void askFor(ipp_t *request, const char *const (&attributes)[count])
{
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", count,
                  nullptr, attributes);
}

/// The answer; null, with the reason in the error, when there is none or it is a refusal.
IppAnswer answerTo(ipp_t *request, SchedulerConnection &scheduler, const char *resource,
                   QString *error)
{
    http_t *http = scheduler.open(error);
    if (!http) {
        ippDelete(request);
        return nullptr;
    }
    IppAnswer answer(cupsDoRequest(http, request, resource));
    // libcups waits for a request behind a whole answer alone.
    if (!answer || httpGetState(http) != HTTP_STATE_WAITING ||
        cupsLastError() > IPP_STATUS_OK_CONFLICTING) {
        *error = scheduler.fault();
        return nullptr;
    }
    return answer;
}

QString textOf(ipp_attribute_t *attribute)
{
    return QString::fromUtf8(ippGetString(attribute, 0, nullptr));
}

void take(ipp_attribute_t *attribute, SchedulerJob &job)
{
    const char *const name = ippGetName(attribute);
    const auto isNamed = [name](const char *other) {
        return std::strcmp(name, other) == 0;
    };
    if (isNamed("job-id")) {
        job.id = ippGetInteger(attribute, 0);
    } else if (isNamed("job-k-octets")) {
        job.kilobytes = ippGetInteger(attribute, 0);
    } else if (isNamed("job-media-sheets-completed")) {
        job.sheets = ippGetInteger(attribute, 0);
    } else if (isNamed("job-name")) {
        job.name = textOf(attribute);
    } else if (isNamed("job-printer-state-message")) {
        job.printerMessage = textOf(attribute);
    } else if (isNamed("job-printer-uri")) {
        job.queue = QUrl::fromPercentEncoding(textOf(attribute).section(u'/', -1).toUtf8());
    } else if (isNamed("job-state")) {
        job.state = ipp_jstate_t(ippGetInteger(attribute, 0));
    } else if (isNamed("job-state-reasons")) {
        for (int i = 0; i < ippGetCount(attribute); ++i) {
            job.reasons.append(QString::fromUtf8(ippGetString(attribute, i, nullptr)));
        }
        job.reasons.removeAll(QStringLiteral("none"));
    }
}

/// The jobs of an answer, each a group of attributes.
QList<SchedulerJob> jobsIn(ipp_t *answer)
{
    QList<SchedulerJob> jobs;
    bool isInJob = false;
    for (ipp_attribute_t *attribute = ippFirstAttribute(answer); attribute;
         attribute = ippNextAttribute(answer)) {
        if (ippGetGroupTag(attribute) != IPP_TAG_JOB || !ippGetName(attribute)) {
            isInJob = false;
            continue;
        }
        if (!isInJob) {
            jobs.append(SchedulerJob());
            isInJob = true;
        }
        take(attribute, jobs.last());
    }
    return jobs;
}
} // namespace

std::optional<SchedulerJob> SchedulerJob::read(SchedulerConnection &scheduler, int id,
                                               QString *error)
{
    ipp_t *request = requestFor(IPP_OP_GET_JOB_ATTRIBUTES, "job-uri", uriOf(id));
    askFor(request, attributesOfOne);
    const IppAnswer answer = answerTo(request, scheduler, "/", error);
    if (!answer && cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND) {
        *error = QString();
    }
    const QList<SchedulerJob> jobs = answer ? jobsIn(answer.get()) : QList<SchedulerJob>();
    return jobs.isEmpty() ? std::nullopt : std::optional(jobs.first());
}

std::optional<QList<SchedulerJob>> SchedulerJob::named(SchedulerConnection &scheduler,
                                                       const QString &queue, const QString &word,
                                                       QString *error)
{
    ipp_t *request = requestFor(IPP_OP_GET_JOBS, "printer-uri", PrintQueue::uriOf(queue));
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "all");
    ippAddBoolean(request, IPP_TAG_OPERATION, "my-jobs", 1);
    askFor(request, attributesOfMany);
    const IppAnswer answer = answerTo(request, scheduler, "/", error);
    if (!answer) {
        return std::nullopt;
    }
    QList<SchedulerJob> found;
    const QList<SchedulerJob> jobs = jobsIn(answer.get());
    for (const SchedulerJob &job : jobs) {
        if (job.name.section(u' ', 0, 0) == word) {
            found.append(job);
        }
    }
    std::sort(found.begin(), found.end(),
              [](const SchedulerJob &a, const SchedulerJob &b) { return a.id < b.id; });
    return found;
}

bool SchedulerJob::cancel(SchedulerConnection &scheduler, int id, QString *error)
{
    ipp_t *request = requestFor(IPP_OP_CANCEL_JOB, "job-uri", uriOf(id));
    return answerTo(request, scheduler, "/jobs/", error) != nullptr;
}

QString SchedulerJob::stateName() const
{
    return QString::fromLatin1(ippEnumString("job-state", int(state)));
}

QString SchedulerJob::explanation() const
{
    QStringList parts = reasons;
    if (!printerMessage.isEmpty()) {
        parts.prepend(printerMessage);
    }
    return parts.join(QStringLiteral("; "));
}
