#include "host/DialogCallback.h"

DialogCallback::DialogCallback(std::unique_ptr<PPDFile> ppd, Printer printer, Paper paper,
                               PrintSettings settings)
    : mPPD(std::move(ppd))
    , mSettings(std::move(settings))
    , mPageFormat(std::move(paper))
    , mPrinter(std::move(printer))
{
}

void DialogCallback::willChangePPDOptionKeyValue(const QString &key, const QString &ppdChoice)
{
    if (mPPD->mark(key, ppdChoice)) {
        Q_EMIT choiceChanged(key, ppdChoice);
    } else {
        Q_EMIT choiceRefused(key, ppdChoice);
    }
}

void DialogCallback::panelViewDidResize()
{
    Q_EMIT viewResized();
}
