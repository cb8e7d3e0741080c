// SPDX-License-Identifier: Apache-2.0
#include "cups/PrinterRecord.h"

#include "cups/SchedulerConnection.h"

namespace {
QString nameOfPPD(const QString &printer)
{
    return QStringLiteral("PPD of %1").arg(printer);
}
} // namespace

PrinterRecord PrinterRecord::read(SchedulerConnection &scheduler, const QString &name,
                                  MissingQueue missing)
{
    PrinterRecord record;
    record.name = name;
    record.queue = PrintQueue::find(scheduler, name, &record.error);
    const bool isMissing = record.queue && record.queue->isMissing();
    if (!record.queue || (isMissing && missing == MissingQueue::Leave)) {
        return record;
    }
    QString reason;
    if (isMissing && !PrintQueue::makeTemporary(scheduler, record.queue->queue(), &reason)) {
        record.error = QStringLiteral("%1: %2").arg(name, reason);
        return record;
    }
    record.update(scheduler);
    return record;
}

PrinterRecord PrinterRecord::choose(SchedulerConnection &scheduler, const QString &asked)
{
    PrinterRecord record;
    const bool isQueue = !asked.isEmpty() && PrintQueue::queueOf(asked) == asked;
    if (isQueue) {
        record = read(scheduler, asked);
    }
    if (!record.queue) {
        QString reason;
        const QString name = PrintQueue::choose(scheduler, asked, &reason);
        if (!isQueue && !name.isNull()) {
            return read(scheduler, name);
        }
        record.error = reason.isNull() ? record.error : reason;
    }
    return record;
}

QueuePPD::Answer PrinterRecord::update(SchedulerConnection &scheduler)
{
    if (!scheduler.open(&error)) {
        return QueuePPD::Answer::Failed;
    }
    QString reason;
    const QueuePPD::Answer answer =
        queue ? ppd.update(scheduler, queue->ppdQueue(), &reason) : QueuePPD::Answer::None;
    if (!reason.isNull()) {
        error = QStringLiteral("%1: %2").arg(nameOfPPD(name), reason);
    }
    return answer;
}

std::unique_ptr<PPDFile> PrinterRecord::openPPD(QString *reason, PPDFile::Marks marks) const
{
    return ppd.text.isNull() ? nullptr : PPDFile::read(ppd.text, nameOfPPD(name), reason, marks);
}
