// SPDX-License-Identifier: Apache-2.0
#include "cups/JobSubmission.h"

#include "cups/PrintQueue.h"
#include "cups/SchedulerConnection.h"
#include "cups/SchedulerJob.h"

#include <QFile>
#include <QFileInfo>

#include <cups/cups.h>

#include <algorithm>
#include <chrono>
#include <iterator>

namespace {
using namespace std::chrono_literals;

/// How long the scheduler may take to cancel a job that could not be sent whole.
constexpr auto cancelLimit = 1s;
constexpr qint64 pieceSize = 65'536;

/// What the scheduler answers when it could not take the job just now. That something is not
/// possible means that there are too many jobs.
constexpr ipp_status_t passingFaults[] = {
    IPP_STATUS_ERROR_BUSY,
    IPP_STATUS_ERROR_INTERNAL,
    IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS,
    IPP_STATUS_ERROR_NOT_POSSIBLE,
    IPP_STATUS_ERROR_PRINTER_IS_DEACTIVATED,
    IPP_STATUS_ERROR_SERVICE_UNAVAILABLE,
    IPP_STATUS_ERROR_TEMPORARY,
    IPP_STATUS_ERROR_TOO_MANY_JOBS,
};

QString faultOfFile(const QString &file)
{
    const QFileInfo info(file);
    if (info.isDir()) {
        return QStringLiteral("%1: is a folder").arg(file);
    }
    // What a pipe holds could be read only once.
    if (info.exists() && !info.isFile()) {
        return QStringLiteral("%1: is no regular file").arg(file);
    }
    QFile readable(file);
    if (!readable.open(QIODevice::ReadOnly)) {
        return QStringLiteral("%1: %2").arg(file, readable.errorString());
    }
    char first = 0;
    if (readable.read(&first, 1) != 1) {
        return QStringLiteral("%1: is empty").arg(file);
    }
    return {};
}

/// Makes a job without documents: its number, 0 when that fails. cupsCreateJob() would ask the
/// scheduler for more than that, on connections of its own that have no limit.
int create(http_t *http, const QByteArray &queue, const QString &title, const CupsOptions &options)
{
    ipp_t *request = ippNewRequest(IPP_OP_CREATE_JOB);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr,
                 PrintQueue::uriOf(QString::fromUtf8(queue)).constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 title.toUtf8().constData());
    for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION}) {
        cupsEncodeOptions2(request, options.count(), options.data(), group);
    }
    ipp_t *answer = cupsDoRequest(http, request, ("/printers/" + queue).constData());
    ipp_attribute_t *number = ippFindAttribute(answer, "job-id", IPP_TAG_INTEGER);
    const int job =
        number && cupsLastError() <= IPP_STATUS_OK_CONFLICTING ? ippGetInteger(number, 0) : 0;
    ippDelete(answer);
    return job;
}

/// What kind of document the options say that the files are.
const char *formatIn(const CupsOptions &options)
{
    const char *format = cupsGetOption("document-format", options.count(), options.data());
    return cupsGetOption("raw", options.count(), options.data()) ? CUPS_FORMAT_RAW
           : format                                              ? format
                                                                 : CUPS_FORMAT_AUTO;
}

/// Sends one document of a job. @p fileFault is set when the fault is the file's.
bool sendDocument(http_t *http, const QByteArray &queue, int job, const QString &path,
                  const char *format, bool isLast, QString *fileFault)
{
    QFile file(path);
    const QByteArray name = QFileInfo(path).fileName().toUtf8();
    if (!file.open(QIODevice::ReadOnly)) {
        *fileFault = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    http_status_t status =
        cupsStartDocument(http, queue.constData(), job, name.constData(), format, isLast);
    // To its end and not to its size: those of the kernel have none.
    for (QByteArray piece = file.read(pieceSize);
         status == HTTP_STATUS_CONTINUE && !piece.isEmpty(); piece = file.read(pieceSize)) {
        status = cupsWriteRequestData(http, piece.constData(), std::size_t(piece.size()));
    }
    if (file.error() != QFileDevice::NoError) {
        *fileFault = QStringLiteral("%1: %2").arg(path, file.errorString());
        return false;
    }
    // Without an answer libcups may tell a success. It waits for a request behind a whole answer
    // alone.
    return status == HTTP_STATUS_CONTINUE &&
           cupsFinishDocument(http, queue.constData()) <= IPP_STATUS_OK_CONFLICTING &&
           httpGetState(http) == HTTP_STATE_WAITING;
}

bool sendDocuments(http_t *http, const QByteArray &queue, int job, const QStringList &files,
                   const CupsOptions &options, QString *fileFault)
{
    const char *const format = formatIn(options);
    return std::all_of(files.begin(), files.end(), [&](const QString &file) {
        return sendDocument(http, queue, job, file, format, &file == &files.last(), fileFault);
    });
}

/// Whether what has failed may work later, by what the scheduler has answered, if it has.
bool mayWorkLater(const SchedulerConnection &scheduler, http_t *http)
{
    return scheduler.isSilent() || httpError(http) != 0 ||
           httpGetState(http) != HTTP_STATE_WAITING ||
           std::ranges::find(passingFaults, cupsLastError()) != std::end(passingFaults);
}

/// Cancels a job, on a connection of its own: the one before may be gone.
void cancel(int job)
{
    QString error;
    SchedulerConnection scheduler(cancelLimit);
    if (job != 0) {
        SchedulerJob::cancel(scheduler, job, &error);
    }
}
} // namespace

QString JobSubmission::faultOf(const QStringList &files)
{
    for (const QString &file : files) {
        if (QString fault = faultOfFile(file); !fault.isNull()) {
            return fault;
        }
    }
    return {};
}

JobSubmission::Receipt JobSubmission::send(SchedulerConnection &scheduler, const QString &printer,
                                           const QStringList &files, const QString &title,
                                           const JobOptions &options)
{
    Receipt receipt;
    http_t *http = scheduler.open(&receipt.error);
    if (!http) {
        receipt.mayWorkLater = true;
        return receipt;
    }
    const QByteArray queue = PrintQueue::queueOf(printer).toUtf8();
    const CupsOptions cupsOptions(options);
    QString fault;
    int job = create(http, queue, title, cupsOptions);
    if (job == 0 && cupsLastError() == IPP_STATUS_ERROR_NOT_FOUND &&
        PrintQueue::makeTemporary(scheduler, PrintQueue::queueOf(printer), &fault)) {
        job = create(http, queue, title, cupsOptions);
    }
    if (job != 0 && sendDocuments(http, queue, job, files, cupsOptions, &fault)) {
        receipt.job = job;
        return receipt;
    }
    receipt.error =
        QStringLiteral("%1: %2").arg(printer, fault.isNull() ? scheduler.fault() : fault);
    receipt.mayWorkLater = fault.isNull() && mayWorkLater(scheduler, http);
    receipt.unfinished = job;
    return receipt;
}

int JobSubmission::print(SchedulerConnection &scheduler, const QString &printer,
                         const QStringList &files, const QString &title, const JobOptions &options,
                         QString *error)
{
    const Receipt receipt = send(scheduler, printer, files, title, options);
    *error = receipt.error;
    cancel(receipt.unfinished);
    return receipt.job;
}
