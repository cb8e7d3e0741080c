#pragma once

#include "host/DialogCallback.h"
#include "host/JobOptions.h"
#include "host/PanelBundle.h"

#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

class ProblemReporter;
class QWidget;

/**
 * The panels of one dialog and printer, and what they decide for the job.
 *
 * A panel that declares no PPD option is left out.
 */
class PanelHost : public QObject
{
    Q_OBJECT

public:
    /// What the panels are about.
    struct Target
    {
        /// The printer's, with the choices marked that the panels start from; never null.
        std::unique_ptr<PPDFile> ppd;
        Printer printer;
        Paper paper;
        PrintSettings settings;
    };

    /// One line of the summary.
    struct SummaryLine
    {
        QString title;
        QString value;
    };

    /// @param bundles and @param reporter must outlive the host.
    PanelHost(Target target, const PanelBundles &bundles, ProblemReporter &reporter);
    ~PanelHost() override;

    /// The panels in the bundles' order, owned by the host.
    const std::vector<PDEPanel *> &panels() const { return mPanels; }

    PPDFile &ppd() const { return mCallback->ppd(); }

    /**
     * A choice that the user has made before: marked at once, and once more by the panel's own
     * controls when they are first shown, since a panel then starts from the PPD's defaults.
     */
    void request(const QString &key, const QString &choice);

    /// The panel's view, owned by the panel; null, and reported, when it cannot be made.
    QWidget *view(PDEPanel &panel);

    /// The panel's tab is about to be seen. What the user has set in it stays set.
    void show(PDEPanel &panel);

    /// The panel's tab is not seen any more: its choices are taken over.
    void hide(PDEPanel &panel);

    /// The user has picked another paper.
    void setPaper(const Paper &paper);
    const Paper &paper() const;

    /// The user accepts the dialog; false when a panel refuses to print.
    bool accept();

    /// The marked choice of every option that a panel declares and the PPD has.
    JobOptions jobOptions() const;

    /// The keywords of the options that the panels declare.
    const QStringList &keys() const { return mKeys; }

    /// The lines of all panels in order.
    QList<SummaryLine> summary() const;

Q_SIGNALS:
    /// The summary may have other lines.
    void summaryChanged();
    /// A panel's view has another size.
    void viewResized();

private:
    void addPanels(const PanelBundle &bundle);
    void tellPanels(const QString &key, const QString &choice);
    void showAgain(PDEPanel &panel);
    void applyRequests(PDEPanel &panel);
    void save(PDEPanel &panel);

    ProblemReporter &mReporter;
    std::shared_ptr<DialogCallback> mCallback;
    std::vector<std::unique_ptr<PDEPlugIn>> mPlugIns;
    std::vector<PDEPanel *> mPanels;
    std::vector<PDEPanel *> mShown;
    QStringList mKeys;
    JobOptions mRequests;
};
