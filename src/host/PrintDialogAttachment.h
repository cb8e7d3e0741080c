#pragma once

#include "host/JobOptions.h"
#include "host/PanelBundle.h"

#include <QObject>
#include <QPageSize>
#include <QPointer>

#include <memory>
#include <vector>

class LastChoices;
class PanelHost;
class PPDFile;
class ProblemReporter;
class QPrintDialog;

/**
 * Puts the panels of the chosen printer into a print dialog of Qt's: a tab for each and a tab with
 * the summary. Follows the dialog's printer and paper, and hands the panels' choices to the job
 * when the user accepts.
 *
 * A printer without a PPD, or without any option of a panel's, gets no tab. A dialog that is shown
 * again after the user has printed, cancelled or closed it starts from what was last chosen for its
 * printer; one that has merely been hidden for a while keeps what its panels show.
 */
class PrintDialogAttachment : public QObject
{
    Q_OBJECT

public:
    /**
     * @param dialog owns the attachment.
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

    /// The panels of the chosen printer; null when it has none.
    PanelHost *host() const { return mHost.get(); }

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
    void buildTabs();
    void buildHost();
    void reportMissingQueue(const QString &error);
    void addTabs();
    void dropTabs();
    void watchProperties(QWidget *properties);
    void followPageSize(const QPageSize &size);
    void passChoicesToJob();
    void passPanelsChoices();
    QPageSize startPaper() const;
    QPageSize requestedPageSize(const PPDFile *ppd) const;

    QPrintDialog *mDialog;
    const PanelBundles &mBundles;
    ProblemReporter &mReporter;
    LastChoices &mLastChoices;
    JobOptions mRequested;
    QString mQueue;
    std::unique_ptr<PanelHost> mHost;
    std::vector<QPointer<QWidget>> mTabs;
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
