#pragma once

#include "host/JobOptions.h"
#include "host/PanelBundle.h"

#include <QObject>
#include <QPageSize>
#include <QPointer>

#include <memory>
#include <vector>

class PanelHost;
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
     *        are left alone.
     */
    PrintDialogAttachment(QPrintDialog *dialog, const PanelBundles &bundles,
                          ProblemReporter &reporter, const JobOptions &requested = {});
    ~PrintDialogAttachment() override;

    /// The panels of the chosen printer; null when it has none.
    PanelHost *host() const { return mHost.get(); }

    /// Every option that the dialog has put into the printer's job besides Qt's own ones: after
    /// the dialog was accepted, the panels' choices are among them.
    JobOptions jobOptions() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void followPrinter();
    void buildHost(const QString &queue);
    void addTabs();
    void dropTabs();
    void watchProperties(QWidget *properties);
    void followPageSize(const QPageSize &size);
    void passChoicesToJob();
    QPageSize pageSizeOfDialog(const QString &queue) const;

    QPrintDialog *mDialog;
    const PanelBundles &mBundles;
    ProblemReporter &mReporter;
    JobOptions mRequested;
    QString mQueue;
    std::unique_ptr<PanelHost> mHost;
    std::vector<QPointer<QWidget>> mTabs;
    QPointer<QWidget> mProperties;
};
