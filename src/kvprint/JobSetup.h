// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/PanelHost.h"

#include <QCoreApplication>

#include <memory>

/**
 * A job that is set up without a dialog: what the user asks for is put into the panels' controls,
 * so that the panels' rules hold.
 */
class JobSetup
{
public:
    /// What the user asks for.
    struct Wish
    {
        /// The identifier of a preset, chosen before the options; null for none.
        QString preset;
        /// Of the panels and others.
        JobOptions options;
    };

    /**
     * @param bundles and @param reporter must outlive this object; PanelHost uses them.
     */
    JobSetup(PanelTarget target, const PanelBundles &bundles, ProblemReporter &reporter);

    /// Applies the wish to the panels' controls; may be called once.
    ///
    /// @return null, or what is refused.
    QString apply(const Wish &wish);

    PanelHost &panels() const { return *mHost; }
    PPDFile &ppd() const { return mHost->ppd(); }

    /// The options that the user asked for, with the values that the panels have: those for lp.
    JobOptions askedOptions() const;
    /// The options of the job, including those that the user has saved for the queue.
    JobOptions jobOptions() const;

private:
    QString faultOfPreset(const QString &preset) const;
    QString faultOfRequests() const;
    QString faultOfConflict() const;
    void request(const JobOptions &options);

    const PanelBundles &mBundles;
    ProblemReporter &mReporter;
    PanelTarget mTarget;
    JobOptions mAsked;
    JobOptions mSaved;
    std::unique_ptr<PanelHost> mHost;
};
