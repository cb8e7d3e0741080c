#include "automation/JobSetup.h"

#include "host/OptionCheck.h"
#include "host/PPDPaper.h"
#include "plugin/PDEPanelAutomation.h"

JobSetup::JobSetup(PanelTarget target, const PanelBundles &bundles, ProblemReporter &reporter)
    : mBundles(bundles)
    , mReporter(reporter)
    , mTarget(std::move(target))
    , mSaved(mTarget.savedOptions)
{
}

QString JobSetup::apply(const Wish &wish)
{
    mAsked = wish.options;
    QString fault = faultOfOptions(*mTarget.ppd, mAsked);
    mTarget.ppd->mark(mAsked);
    mTarget.paper = markedPaper(*mTarget.ppd);
    mHost = std::make_unique<PanelHost>(std::move(mTarget), mBundles, mReporter);
    if (!fault.isNull()) {
        return fault;
    }
    JobOptions requests = mSaved;
    requests.merge(mAsked);
    for (const QString &key : mHost->keys()) {
        if (requests.contains(key) && ppd().hasOption(key)) {
            mHost->request(key, requests.value(key));
        }
    }
    mHost->requestPreset(wish.preset);
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
    return faultOfRequests(mAsked);
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

QString JobSetup::faultOfRequests(const JobOptions &options) const
{
    const JobOptions unmet = mHost->unmetRequests();
    for (const auto &[key, choice] : unmet.pairs()) {
        if (options.contains(key)) {
            return mHost->refusal(key, choice);
        }
    }
    return {};
}

JobOptions JobSetup::askedOptions() const
{
    JobOptions options = mAsked;
    options.merge(mHost->jobOptions());
    return options;
}

JobOptions JobSetup::jobOptions() const
{
    JobOptions options = mSaved;
    options.merge(askedOptions());
    if (mAsked.contains(QStringLiteral("PageSize"))) {
        options.remove(QStringLiteral("media"));
    }
    if (options.contains(QStringLiteral("media"))) {
        options.remove(QStringLiteral("PageSize"));
    }
    return options;
}
