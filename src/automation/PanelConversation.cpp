// SPDX-License-Identifier: Apache-2.0
#include "automation/PanelConversation.h"

#include "automation/PanelEvents.h"
#include "host/PanelControls.h"

#include <QApplication>

namespace {
/// Makes the window the one that the user works with, as a dialog is that has just been opened.
void activate(QWidget *window)
{
    window->show();
    window->activateWindow();
    QCoreApplication::processEvents();
}
} // namespace

PanelConversation::PanelConversation(PanelTarget target, const PanelBundles &bundles,
                                     QWidget *window, PanelEvents &events)
    : mWindow(window)
    , mSavedOptions(target.savedOptions)
    , mCallback(std::make_shared<DialogCallback>(std::move(target)))
{
    const auto record = [&events](const QString &key, const QString &choice) {
        events.addChoice(key, choice);
    };
    QObject::connect(mCallback.get(), &DialogCallback::choiceChanged, record);
    QObject::connect(mCallback.get(), &DialogCallback::choiceRefused, record);
    QObject::connect(
        mCallback.get(), &DialogCallback::choiceChanged,
        [this](const QString &key, const QString &choice) { tellPanels(key, choice); });
    QObject::connect(mCallback.get(), &DialogCallback::viewResized,
                     [&events] { events.addResize(); });
    if (const auto &map = mCallback->map()) {
        map->removeAdded(mSavedOptions);
    }
    for (const auto &bundle : bundles) {
        auto plugIn = bundle->makePlugIn();
        const auto list =
            plugIn ? plugIn->PDEPanelsForType(kPrinterModuleDialogType, mCallback) : nullptr;
        if (!list) {
            continue;
        }
        mPlugIns.push_back(std::move(plugIn));
        for (const auto &panel : *list) {
            mPanels.push_back(panel.get());
        }
    }
}

PanelConversation::~PanelConversation() = default;

void PanelConversation::tellPanels(const QString &key, const QString &choice)
{
    for (PDEPanel *panel : mPanels) {
        panel->PPDOptionKeyValueDidChange(key, choice);
    }
}

QWidget *PanelConversation::makeView()
{
    if (QApplication::activeWindow() != mWindow) {
        activate(mWindow);
    }
    QWidget *view = panel()->panelView();
    if (view && view != mView) {
        mView = view;
        view->setParent(mWindow);
        view->show();
    }
    return view;
}

bool PanelConversation::choose(const QString &key, const QString &choice)
{
    if (!ppd().mark(key, choice)) {
        return false;
    }
    JobOptions options;
    options.set(key, choice);
    if (const auto &map = mCallback->map()) {
        options = map->inPanelWords(options, map->markedIn(ppd()));
    }
    for (const auto &[name, value] : options.pairs()) {
        ppd().mark(name, value);
        tellPanels(name, value);
    }
    return true;
}

QStringList PanelConversation::printerKeys() const
{
    const auto &map = mCallback->map();
    return map ? map->printerKeys() : panel()->supportedPPDOptionKeys().value_or(QStringList());
}

QStringList PanelConversation::showFrom(const JobOptions &options)
{
    QStringList refused;
    for (const auto &[key, choice] : options.pairs()) {
        if (!choose(key, choice)) {
            refused.append(key);
        }
    }
    QStringList keys;
    JobOptions start;
    const QStringList all = panel()->supportedPPDOptionKeys().value_or(QStringList());
    for (const QString &key : all) {
        if (const QString choice = ppd().markedChoice(key); !choice.isNull()) {
            keys.append(key);
            start.set(key, choice);
        }
    }
    panel()->willShow();
    QWidget *view = panel()->panelView();
    return view ? refused + PanelControls(view).chooseAll(keys, start, ppd()) : refused;
}

JobOptions PanelConversation::jobOptions() const
{
    return mCallback->jobOptions(panel()->supportedPPDOptionKeys().value_or(QStringList()));
}
