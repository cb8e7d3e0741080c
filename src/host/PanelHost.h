// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"
#include "host/ChoiceConflict.h"
#include "host/DialogCallback.h"
#include "host/PanelBundles.h"
#include "host/PanelTarget.h"

#include <QHash>
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
    /// One line of the summary.
    struct SummaryLine
    {
        QString title;
        QString value;
    };

    /// @param bundles and @param reporter must outlive the host.
    PanelHost(PanelTarget target, const PanelBundles &bundles, ProblemReporter &reporter);
    ~PanelHost() override;

    /// The panels in the bundles' order, owned by the host.
    const std::vector<PDEPanel *> &panels() const { return mPanels; }

    PPDFile &ppd() const { return mCallback->ppd(); }
    /// The map by which the panels' options in the PPD stand for the printer's; nothing when they
    /// are the printer's own.
    const std::optional<KeywordMap> &map() const { return mCallback->map(); }

    /**
     * A choice that the user has made before: marked at once, and once more by the panel's own
     * controls when they are first shown, since a panel then starts from the PPD's defaults.
     */
    void request(const QString &key, const QString &choice);

    /// A preset that the user has asked for, null for none. It is chosen when the panel is first
    /// shown, after the choices that were requested before it and before the later ones.
    void requestPreset(const QString &identifier);

    /// Of the choices that were requested after the preset, those that the panels' controls have
    /// not taken or that are not marked now.
    JobOptions unmetRequests() const;
    /// Whether a requested preset could not be chosen.
    bool isPresetUnmet() const { return !mPreset.isNull(); }
    /// What to tell the user of a choice that cannot be made.
    QString refusal(const QString &key, const QString &choice) const;

    /// The panel's view, owned by the panel; null, and reported, when it cannot be made.
    QWidget *view(PDEPanel &panel);

    /// The panel's tab is about to be seen. What the user has set in it stays set.
    void show(PDEPanel &panel);

    /// The panel's tab is hidden: its choices are saved.
    void hide(PDEPanel &panel);

    /// Saves the choices of the panels that have been shown.
    void saveShown();

    /// The user has picked another paper.
    void setPaper(const Paper &paper);
    const Paper &paper() const;

    /// The user accepts the dialog; false when a panel refuses to print.
    bool accept();

    /// The marked choice of every option that a panel declares and the PPD has, in the printer's
    /// words.
    JobOptions jobOptions() const;

    /**
     * A choice of the panels', in the printer's words, that the PPD forbids beside another of the
     * job's; nothing when there is none, or when the job had both before the panels were asked.
     *
     * @param options the job's, besides jobOptions().
     */
    std::optional<ChoiceConflict> conflict(const JobOptions &options) const;

    /// The keywords of the options that the panels declare.
    const QStringList &keys() const { return mKeys; }
    /// The keywords of the printer's options that the panels decide: with a map others than those
    /// that it adds.
    QStringList printerKeys() const;
    /// Takes the options that the printer does not know by these words out of a job's.
    void removeMapped(JobOptions &options) const;

    /// The lines of all panels in order.
    QList<SummaryLine> summary() const;

Q_SIGNALS:
    /// The summary may have other lines.
    void summaryChanged();
    /// A panel's view has another size.
    void viewResized();

private:
    void addPanels(const PanelBundle &bundle);
    /// With a map, requests what the printer's own choices stand for.
    void startFromPrinter();
    void tellMissingOptions(PDEPanel &panel, const QStringList &keys);
    void tellPanels(const QString &key, const QString &choice);
    void showAgain(PDEPanel &panel);
    void applyPreset(PDEPanel &panel);
    void applyRequests(PDEPanel &panel, const JobOptions &requests);
    void save(PDEPanel &panel);

    ProblemReporter &mReporter;
    JobOptions mSavedOptions;
    std::shared_ptr<DialogCallback> mCallback;
    std::vector<std::unique_ptr<PDEPlugIn>> mPlugIns;
    std::vector<PDEPanel *> mPanels;
    QHash<const PDEPanel *, const PanelBundle *> mBundleOf;
    std::vector<PDEPanel *> mShown;
    QStringList mKeys;
    JobOptions mRequests;
    JobOptions mRequestsBeforePreset;
    /// Keys of requests that no control took.
    QStringList mRefusedKeys;
    /// The requested preset until it has been chosen.
    QString mPreset;
};
