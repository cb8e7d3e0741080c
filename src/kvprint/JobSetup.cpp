// SPDX-License-Identifier: Apache-2.0
#include "kvprint/JobSetup.h"

#include "cups/OptionCheck.h"
#include "cups/PPDPaper.h"
#include "host/ProblemReporter.h"
#include "plugin/PDEPanelAutomation.h"

JobSetup::JobSetup(PanelTarget target, const PanelBundles &bundles, ProblemReporter &reporter)
    : mBundles(bundles)
    , mReporter(reporter)
    , mTarget(std::move(target))
{
    mReporter.report(mTarget.use(mBundles.maps()));
    mSaved = spelledAsIn(*mTarget.ppd, mTarget.savedOptions);
}

QString JobSetup::apply(const Wish &wish)
{
    mAsked = spelledAsIn(*mTarget.ppd, wish.options);
    QString fault = faultOfOptions(*mTarget.ppd, mAsked);
    const JobOptions saved = mTarget.take(mSaved);
    const JobOptions asked = mTarget.take(mAsked);
    mTarget.ppd->mark(mAsked);
    mTarget.paper = markedPaper(*mTarget.ppd);
    mHost = std::make_unique<PanelHost>(std::move(mTarget), mBundles, mReporter);
    if (!fault.isNull()) {
        return fault;
    }
    request(saved);
    mHost->requestPreset(wish.preset);
    request(asked);
    for (PDEPanel *panel : mHost->panels()) {
        if (mHost->view(*panel)) {
            mHost->show(*panel);
        }
    }
    if (mHost->isPresetUnmet()) {
        return faultOfPreset(wish.preset);
    }
    if (!mHost->accept()) {
        return QStringLiteral("a panel keeps the job from being printed");
    }
    fault = faultOfRequests();
    return fault.isNull() ? faultOfConflict() : fault;
}

QString JobSetup::faultOfPreset(const QString &preset) const
{
    QStringList offered;
    for (PDEPanel *panel : mHost->panels()) {
        const PDEPanelAutomation *automation = panel->automation();
        const auto presets = automation ? automation->presets() : QList<PDEPreset>();
        for (const PDEPreset &known : presets) {
            if (known.isEnabled) {
                offered.append(known.identifier);
            } else if (known.identifier == preset) {
                return QStringLiteral("--preset %1: cannot be chosen on the paper %2")
                    .arg(preset, mHost->paper().ppdPaperName());
            }
        }
    }
    return offered.isEmpty() ? QStringLiteral("--preset %1: the printer has no presets").arg(preset)
                             : QStringLiteral("--preset %1: the presets are: %2")
                                   .arg(preset, offered.join(QStringLiteral(", ")));
}

QString JobSetup::faultOfRequests() const
{
    const JobOptions unmet = mHost->unmetRequests();
    const auto &pairs = unmet.pairs();
    return pairs.isEmpty() ? QString() : mHost->refusal(pairs.first().first, pairs.first().second);
}

QString JobSetup::faultOfConflict() const
{
    const auto conflict = mHost->conflict(mAsked);
    return conflict ? conflict->fault() : QString();
}

void JobSetup::request(const JobOptions &options)
{
    for (const QString &key : mHost->keys()) {
        if (options.contains(key) && ppd().hasOption(key)) {
            mHost->request(key, options.value(key));
        }
    }
}

JobOptions JobSetup::askedOptions() const
{
    JobOptions options = mAsked;
    mHost->removeMapped(options);
    options.merge(mHost->jobOptions());
    return options;
}

JobOptions JobSetup::jobOptions() const
{
    JobOptions options = mSaved;
    mHost->removeMapped(options);
    options.merge(askedOptions());
    if (mAsked.contains(QStringLiteral("PageSize"))) {
        options.remove(QStringLiteral("media"));
    }
    if (options.contains(QStringLiteral("media"))) {
        options.remove(QStringLiteral("PageSize"));
    }
    return options;
}
