#include "host/JobSubmission.h"

#include "host/PrintQueue.h"
#include "host/SchedulerConnection.h"

#include <QFile>
#include <QFileInfo>

#include <cups/cups.h>

#include <vector>

QString JobSubmission::faultOf(const QString &file)
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

int JobSubmission::print(SchedulerConnection &scheduler, const QString &printer,
                         const QStringList &files, const QString &title, const JobOptions &options,
                         QString *error)
{
    http_t *http = scheduler.open(error);
    if (!http) {
        return 0;
    }
    QByteArrayList names;
    std::vector<const char *> pointers;
    for (const QString &file : files) {
        names.append(QFile::encodeName(file));
    }
    for (const QByteArray &name : names) {
        pointers.push_back(name.constData());
    }
    const QByteArray queue = PrintQueue::queueOf(printer).toUtf8();
    const CupsOptions cupsOptions(options);
    const int job =
        cupsPrintFiles2(http, queue.constData(), int(pointers.size()), pointers.data(),
                        title.toUtf8().constData(), cupsOptions.count(), cupsOptions.data());
    if (job == 0) {
        *error = QStringLiteral("%1: %2").arg(printer, scheduler.fault());
    }
    return job;
}
