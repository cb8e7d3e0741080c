// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/DialogCallback.h"
#include "host/PanelBundles.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class PanelEvents;

/**
 * A dialog's conversation with a panel, one call at a time: unlike PanelHost it makes no call of
 * its own accord.
 *
 * With several panels the conversation is with the first.
 */
class PanelConversation
{
public:
    /**
     * Builds the printing objects, the callback and the panels.
     *
     * @param window the dialog's, which takes the panel's view; must outlive this object, as must
     *        @param bundles and @param events.
     */
    PanelConversation(PanelTarget target, const PanelBundles &bundles, QWidget *window,
                      PanelEvents &events);
    ~PanelConversation();
    PanelConversation(const PanelConversation &) = delete;
    PanelConversation &operator=(const PanelConversation &) = delete;

    int panelCount() const { return int(mPanels.size()); }
    /// The panel; null when the bundles offer none.
    PDEPanel *panel() const { return mPanels.empty() ? nullptr : mPanels.front(); }
    PPDFile &ppd() const { return mCallback->ppd(); }

    /// Asks for the panel's view and puts it into the window; null when it cannot be made.
    QWidget *makeView();
    /// The view; null before makeView().
    QWidget *view() const { return mView; }

    void changePaper(const Paper &paper) { mCallback->changePaper(paper); }

    /// Another part of the dialog changes a choice: marks it, and with a map what it stands for,
    /// and tells the panels. False, with nothing changed, when the PPD lacks it.
    bool choose(const QString &key, const QString &choice);

    /// The queue that the panel was opened for; empty for a PPD alone.
    QString queue() const { return mCallback->printer().name(); }
    const Paper &paper() const { return mCallback->paper(); }
    /// What the queue's jobs start from, without options that only a map has added.
    const JobOptions &savedOptions() const { return mSavedOptions; }
    /// The keywords of the printer's options that the panel decides. Asks the panel for its keys.
    QStringList printerKeys() const;

    /**
     * Tells the panel that its tab is about to be shown, and has its controls start from these
     * choices, as a dialog does with what the user has chosen before.
     *
     * @return the keywords whose choice the PPD lacks or no control takes.
     */
    QStringList showFrom(const JobOptions &options);

    /// What a job carries of the panel's choices, in the printer's words. Asks the panel for its
    /// keys.
    JobOptions jobOptions() const;

private:
    void tellPanels(const QString &key, const QString &choice);

    QWidget *mWindow;
    JobOptions mSavedOptions;
    std::shared_ptr<DialogCallback> mCallback;
    std::vector<std::unique_ptr<PDEPlugIn>> mPlugIns;
    std::vector<PDEPanel *> mPanels;
    QPointer<QWidget> mView;
};
