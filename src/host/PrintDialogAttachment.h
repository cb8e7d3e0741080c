#pragma once

#include "host/JobOptions.h"
#include "host/PanelBundle.h"

#include <QObject>
#include <QPageSize>
#include <QPointer>

#include <memory>
#include <vector>

class PanelHost;
class PPDFile;
class ProblemReporter;
class QPrintDialog;

/**
 * Puts the panels of the chosen printer into a print dialog of Qt's: a tab for each and a tab with
 * the summary. Follows the dialog's printer and paper, and hands the panels' choices to the job
 * when the user accepts.
 *
 * A printer without a PPD, or without any option of a panel's, gets no tab.
 */
class PrintDialogAttachment : public QObject
{
    Q_OBJECT

public:
    /**
     * @param dialog owns the attachment.
     * @param bundles must outlive the dialog, and so must the reporter.
     * @param requested choices that the user has made before; those that the printer's PPD lacks
     *        are left alone. Its paper ("media" or "PageSize") holds until the user picks another,
     *        where Qt's dialog would start from the printer's default.
     */
    PrintDialogAttachment(QPrintDialog *dialog, const PanelBundles &bundles,
                          ProblemReporter &reporter, const JobOptions &requested = {});
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
    void followPrinter();
    void buildHost(const QString &queue);
    void addTabs();
    void dropTabs();
    void watchProperties(QWidget *properties);
    void followPageSize(const QPageSize &size);
    void passChoicesToJob();
    QPageSize requestedPageSize(const QString &queue, const PPDFile *ppd) const;

    QPrintDialog *mDialog;
    const PanelBundles &mBundles;
    ProblemReporter &mReporter;
    JobOptions mRequested;
    QString mQueue;
    std::unique_ptr<PanelHost> mHost;
    std::vector<QPointer<QWidget>> mTabs;
    QPointer<QWidget> mProperties;
    /// Invalid once the user has picked a paper.
    QPageSize mRequestedPaper;
    bool mIsRefused = false;
};
