// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"
#include "cups/PrinterRecord.h"
#include "host/PanelBundles.h"

#include <QMap>
#include <QObject>
#include <QPageSize>
#include <QPointer>

#include <memory>
#include <vector>

class LastChoices;
class PanelHost;
class PrinterFetch;
class ProblemReporter;
class QPrintDialog;

/**
 * Puts the panels of the chosen printer into a print dialog of Qt's: a tab for each and a tab with
 * the summary. Follows the dialog's printer and paper, and hands the panels' choices to the job
 * when the user accepts.
 *
 * The dialog never waits for the scheduler: the tabs appear when it has told what the printer has.
 * Only when the user prints before that, the dialog waits a moment. Each printer keeps what was set
 * for it while the dialog is shown.
 *
 * A printer without a PPD, or without any option of a panel's, gets no tab. A dialog that is shown
 * again after the user has printed, cancelled or closed it starts from what was last chosen for its
 * printer; one that has merely been hidden for a while keeps what its panels show.
 */
class PrintDialogAttachment : public QObject
{
    Q_OBJECT
    /// For programs that look into an application.
    Q_PROPERTY(bool waiting READ isWaiting)

public:
    /**
     * @param dialog owns the attachment. It may be hidden, visible, or just being hidden because it
     *        has been accepted: then the job gets its options at once.
     * @param bundles must outlive the dialog, and so must the reporter and the last choices.
     * @param lastChoices what the panels start from, kept up to date.
     * @param requested choices that the user has made before, for any printer; those that the
     *        printer's PPD lacks are left alone. Its paper ("media" or "PageSize") holds until the
     *        user picks another, where Qt's dialog would start from the printer's default.
     */
    PrintDialogAttachment(QPrintDialog *dialog, const PanelBundles &bundles,
                          ProblemReporter &reporter, LastChoices &lastChoices,
                          const JobOptions &requested = {});
    ~PrintDialogAttachment() override;

    /// The panels of the chosen printer; null when it has none, or while isWaiting().
    PanelHost *host() const { return mHost.get(); }

    /// Whether the scheduler has not told yet what the chosen printer has.
    bool isWaiting() const { return mFetch != nullptr; }

    /// Every option that the dialog has put into the printer's job besides Qt's own ones: after
    /// the dialog was accepted, the panels' choices are among them.
    JobOptions jobOptions() const;

    /// Whether a panel has kept the accepted job from being printed.
    bool isRefused() const { return mIsRefused; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void checkResourcesLater();
    void beginShowing();
    void endShowing();
    void beAccepted();
    void beFinished(int result);
    void checkWhetherClosed();
    void followPrinter();
    /// Forgets what has been set in the dialog.
    void startAnew();
    void buildTabs();
    void takeAnswer(const PrinterRecord &printer);
    void buildHost();
    void addTabs();
    void dropTabs();
    void deleteTabs();
    void watchProperties(QWidget *properties);
    /// Hides what the panels show from the list of options in the printer's properties.
    void hidePanelsOptions();
    void followPageSize(const QPageSize &size);
    void passChoicesToJob();
    /// Waits a moment for what has not been told yet.
    void awaitPrinter();
    void passPanelsChoices();
    /// The choices without those that the printer has lost since its PPD was read.
    JobOptions choicesThatThePrinterHas(const JobOptions &choices);
    QPageSize requestedPageSize(const PPDFile *ppd) const;

    QPrintDialog *mDialog;
    const PanelBundles &mBundles;
    ProblemReporter &mReporter;
    LastChoices &mLastChoices;
    JobOptions mRequested;
    QString mQueue;
    /// What the scheduler has told of the printers that were chosen, by their names.
    QMap<QString, PrinterRecord> mPrinters;
    /// The request for the chosen printer; null when nothing is asked.
    std::unique_ptr<PrinterFetch> mFetch;
    std::unique_ptr<PanelHost> mHost;
    /// What was set for the printers that were chosen before.
    QMap<QString, JobOptions> mSetChoices;
    std::vector<QPointer<QWidget>> mTabs;
    /// The index of the tab of ours that was turned to when the tabs were dropped, and the page
    /// that has been in its place since; null for none.
    int mTabBefore = 0;
    QPointer<QWidget> mPageSince;
    QPointer<QWidget> mProperties;
    /// Invalid once the user has picked a paper.
    QPageSize mRequestedPaper;
    /// Invalid until the user has picked a paper for the printer.
    QPageSize mPickedPaper;
    /// Whether the user has printed or cancelled since the dialog was last shown.
    bool mIsFinished = false;
    bool mIsHandedOver = false;
    bool mIsRefused = false;
};
