// SPDX-License-Identifier: Apache-2.0
#include "host/DialogCallback.h"

#include "plugin/PDEPanel.h"
#include "printcore/NotificationCenter.h"

DialogCallback::DialogCallback(PanelTarget target)
    : mPPD(std::move(target.ppd))
    , mMap(std::move(target.map))
    , mSettings(std::move(target.settings))
    , mPageFormat(std::move(target.paper))
    , mPrinter(std::move(target.printer))
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

void DialogCallback::changePaper(const Paper &paper)
{
    mPageFormat.setPaper(paper);
    NotificationCenter::defaultCenter().postNotification(kPaperDidChangeNotification, this);
}

JobOptions DialogCallback::jobOptions(const QStringList &keys) const
{
    JobOptions options;
    for (const QString &key : keys) {
        const QString choice = mPPD->markedChoice(key);
        if (!choice.isNull()) {
            options.set(key, choice);
        }
    }
    return mMap ? mMap->printerChoices(options, mMap->markedIn(*mPPD)) : options;
}

#include "moc_DialogCallback.cpp"
