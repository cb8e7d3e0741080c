#include "host/PanelTarget.h"

#include "host/PPDPaper.h"
#include "host/PrintQueue.h"

std::optional<PanelTarget> PanelTarget::ofPPD(const QString &path, PPDFile::Marks marks,
                                              QString *error)
{
    auto ppd = PPDFile::open(path, error, marks);
    if (!ppd) {
        return std::nullopt;
    }
    Paper paper = markedPaper(*ppd);
    return PanelTarget{std::move(ppd), Printer(QString()), std::move(paper), PrintSettings(),
                       JobOptions()};
}

std::optional<PanelTarget> PanelTarget::ofQueue(const QString &name, PPDFile::Marks marks,
                                                QString *error)
{
    if (PrintQueue::choose(name, error).isNull()) {
        return std::nullopt;
    }
    const auto queue = PrintQueue::find(name);
    if (!queue) {
        return std::nullopt;
    }
    auto ppd = PPDFile::ofQueue(name, error, marks);
    if (!ppd) {
        return std::nullopt;
    }
    JobOptions saved = queue->jobOptions();
    ppd->mark(saved);
    Paper paper = markedPaper(*ppd);
    return PanelTarget{std::move(ppd), Printer(PrintQueue::queueOf(name), queue->deviceURI()),
                       std::move(paper), PrintSettings(), std::move(saved)};
}
