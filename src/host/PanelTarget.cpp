// SPDX-License-Identifier: Apache-2.0
#include "host/PanelTarget.h"

#include "cups/PPDPaper.h"
#include "cups/PrinterRecord.h"
#include "host/PrinterMaps.h"

std::optional<PanelTarget> PanelTarget::ofPPD(const QString &path, PPDFile::Marks marks,
                                              QString *error)
{
    auto ppd = PPDFile::open(path, error, marks);
    return ppd ? std::make_optional(of(std::move(ppd))) : std::nullopt;
}

PanelTarget PanelTarget::of(std::unique_ptr<PPDFile> ppd)
{
    Paper paper = markedPaper(*ppd);
    return {std::move(ppd),  Printer(QString()), std::move(paper),
            PrintSettings(), JobOptions(),       std::nullopt};
}

std::optional<PanelTarget> PanelTarget::ofQueue(SchedulerConnection &scheduler, const QString &name,
                                                PPDFile::Marks marks, QString *error)
{
    return of(PrinterRecord::read(scheduler, name), marks, error);
}

std::optional<PanelTarget> PanelTarget::of(const PrinterRecord &printer, PPDFile::Marks marks,
                                           QString *error)
{
    *error = printer.error;
    auto ppd = printer.error.isNull() ? printer.openPPD(error, marks) : nullptr;
    if (!ppd || !printer.queue) {
        return std::nullopt;
    }
    JobOptions saved = printer.queue->jobOptions();
    ppd->mark(saved);
    Paper paper = markedPaper(*ppd);
    return PanelTarget{
        std::move(ppd),   Printer(printer.queue->queue(), printer.queue->deviceURI()),
        std::move(paper), PrintSettings(),
        std::move(saved), std::nullopt};
}

QString PanelTarget::use(const PrinterMaps &maps)
{
    map = maps.mapFor(*ppd);
    if (!map) {
        return {};
    }
    QString error;
    auto extended = ppd->with(map->ppdLines(*ppd), &error);
    if (!extended) {
        map.reset();
        return error;
    }
    ppd = std::move(extended);
    ppd->mark(savedOptions);
    return {};
}

JobOptions PanelTarget::take(const JobOptions &options)
{
    if (!map) {
        return options;
    }
    const QStringList keys = map->printerKeys();
    for (const QString &key : keys) {
        if (options.contains(key)) {
            ppd->mark(key, options.value(key));
        }
    }
    return map->inPanelWords(options, map->markedIn(*ppd));
}
