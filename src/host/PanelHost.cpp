// SPDX-License-Identifier: Apache-2.0
#include "host/PanelHost.h"

#include "host/PanelControls.h"
#include "host/ProblemReporter.h"
#include "plugin/PDEPanelAutomation.h"
#include "printcore/Beep.h"
#include "printcore/QtVersions.h"

#include <QApplication>

#include <algorithm>

namespace {
/// Lets panels beep, unless somebody else has seen to that.
void offerBeep()
{
    if (Beeper former = setBeeper(QApplication::beep)) {
        setBeeper(std::move(former));
    }
}
} // namespace

PanelHost::PanelHost(PanelTarget target, const PanelBundles &bundles, ProblemReporter &reporter)
    : mReporter(reporter)
    , mSavedOptions(target.savedOptions)
    , mCallback(std::make_shared<DialogCallback>(std::move(target)))
{
    connect(mCallback.get(), &DialogCallback::choiceChanged, this, &PanelHost::tellPanels);
    connect(mCallback.get(), &DialogCallback::viewResized, this, &PanelHost::viewResized);
    connect(mCallback.get(), &DialogCallback::choiceRefused, this,
            [this](const QString &key, const QString &choice) {
                mReporter.report(
                    QStringLiteral("the printer's PPD has no choice %1=%2").arg(key, choice));
            });
    offerBeep();
    for (const auto &bundle : bundles) {
        addPanels(*bundle);
    }
    startFromPrinter();
}

void PanelHost::startFromPrinter()
{
    const auto &map = mCallback->map();
    const JobOptions choices = map ? map->panelChoices(map->markedIn(ppd())) : JobOptions();
    for (const auto &[key, choice] : choices.pairs()) {
        request(key, choice);
    }
}

PanelHost::~PanelHost() = default;

void PanelHost::addPanels(const PanelBundle &bundle)
{
    auto plugIn = bundle.makePlugIn();
    const auto list =
        plugIn ? plugIn->PDEPanelsForType(kPrinterModuleDialogType, mCallback) : nullptr;
    if (!list) {
        mReporter.report(QStringLiteral("%1: could not make its panel").arg(bundle.name()));
        return;
    }
    mPlugIns.push_back(std::move(plugIn));
    for (const auto &panel : *list) {
        mPanels.push_back(panel.get());
        mBundleOf.insert(panel.get(), &bundle);
        const QStringList keys = panel->supportedPPDOptionKeys().value_or(QStringList());
        if (keys.isEmpty()) {
            mPanels.pop_back();
            continue;
        }
        mKeys += keys;
        tellMissingOptions(*panel, keys);
    }
}

void PanelHost::tellMissingOptions(PDEPanel &panel, const QStringList &keys)
{
    for (const QString &key : keys) {
        if (!ppd().hasOption(key)) {
            mReporter.report(
                QStringLiteral("the panel \"%1\" sets %2, which the printer's PPD lacks: "
                               "no job carries it")
                    .arg(panel.panelName(), key));
        }
    }
}

void PanelHost::tellPanels(const QString &key, const QString &choice)
{
    for (PDEPanel *panel : mPanels) {
        panel->PPDOptionKeyValueDidChange(key, choice);
    }
    Q_EMIT summaryChanged();
}

void PanelHost::request(const QString &key, const QString &choice)
{
    if (!ppd().mark(key, choice)) {
        mReporter.report(QStringLiteral("%1=%2: the choices of %1 are: %3")
                             .arg(key, choice, ppd().choices(key).join(QStringLiteral(", "))));
        return;
    }
    // libcups takes "off" for "OFF".
    const QString marked = ppd().markedChoice(key);
    const bool isMarked = marked.compare(choice, Qt::CaseInsensitive) == 0;
    mRequests.set(key, isMarked ? marked : choice);
    tellPanels(key, mRequests.value(key));
}

QWidget *PanelHost::view(PDEPanel &panel)
{
    QWidget *view = panel.panelView();
    if (!view && !mBundleOf.value(&panel)->hasFormFault(mReporter)) {
        mReporter.report(
            QStringLiteral("the panel \"%1\" could not make its view").arg(panel.panelName()));
    }
    return view;
}

void PanelHost::show(PDEPanel &panel)
{
    const bool isFirst = std::find(mShown.begin(), mShown.end(), &panel) == mShown.end();
    if (isFirst) {
        mShown.push_back(&panel);
        panel.willShow();
        applyRequests(panel, mRequestsBeforePreset);
        applyPreset(panel);
        applyRequests(panel, mRequests);
    } else {
        showAgain(panel);
    }
    Q_EMIT summaryChanged();
}

void PanelHost::showAgain(PDEPanel &panel)
{
    // A panel starts from the marked choices and from the combination that its menu has selected,
    // and knows no more of what the user had set besides.
    QWidget *view = panel.panelView();
    const auto shown = view ? PanelControls(view).shown() : QList<PanelControls::Shown>();
    panel.willShow();
    for (const PanelControls::Shown &control : shown) {
        PanelControls(view).choose(control.key, control.index, control.choice);
    }
}

void PanelHost::hide(PDEPanel &panel)
{
    panel.shouldHide();
    save(panel);
    Q_EMIT summaryChanged();
}

void PanelHost::saveShown()
{
    for (PDEPanel *panel : mShown) {
        save(*panel);
    }
}

void PanelHost::save(PDEPanel &panel)
{
    QString error;
    if (!panel.saveValuesAndReturnError(&error)) {
        mReporter.report(error);
    }
}

void PanelHost::requestPreset(const QString &identifier)
{
    mPreset = identifier;
    mRequestsBeforePreset.merge(mRequests);
    mRequests = JobOptions();
}

void PanelHost::applyPreset(PDEPanel &panel)
{
    PDEPanelAutomation *automation = mPreset.isNull() ? nullptr : panel.automation();
    if (automation && automation->choosePreset(mPreset)) {
        mPreset = QString();
    }
}

void PanelHost::applyRequests(PDEPanel &panel, const JobOptions &requests)
{
    QStringList keys = panel.supportedPPDOptionKeys().value_or(QStringList());
    removeFrom(keys, [&requests](const QString &key) { return !requests.contains(key); });
    QWidget *view = keys.isEmpty() ? nullptr : panel.panelView();
    if (!view) {
        return;
    }
    const QStringList refused = PanelControls(view).chooseAll(keys, requests, ppd());
    for (const QString &key : refused) {
        mRefusedKeys.append(key);
        mReporter.report(refusal(key, requests.value(key)));
    }
}

JobOptions PanelHost::unmetRequests() const
{
    JobOptions unmet;
    for (const auto &[key, choice] : mRequests.pairs()) {
        if (mRefusedKeys.contains(key) || ppd().markedChoice(key) != choice) {
            unmet.set(key, choice);
        }
    }
    return unmet;
}

QString PanelHost::refusal(const QString &key, const QString &choice) const
{
    const QString name = paper().ppdPaperName();
    const QString onPaper =
        name.isEmpty() ? QString() : QStringLiteral(" on the paper %1").arg(name);
    const QString marked = ppd().markedChoice(key);
    const QString outcome =
        marked == choice ? QString() : QStringLiteral("; it stays %1").arg(marked);
    return QStringLiteral("%1=%2 cannot be chosen%3 with the other settings%4")
        .arg(key, choice, onPaper, outcome);
}

void PanelHost::setPaper(const Paper &paper)
{
    mCallback->changePaper(paper);
    Q_EMIT summaryChanged();
}

const Paper &PanelHost::paper() const
{
    return mCallback->paper();
}

bool PanelHost::accept()
{
    return std::ranges::all_of(mPanels, [this](PDEPanel *panel) {
        save(*panel);
        return panel->shouldPrint();
    });
}

JobOptions PanelHost::jobOptions() const
{
    return mCallback->jobOptions(mKeys);
}

std::optional<ChoiceConflict> PanelHost::conflict(const JobOptions &options) const
{
    JobOptions job = options;
    job.merge(jobOptions());
    QString error;
    auto found = ChoiceConflict::find(ppd(), printerKeys(), mSavedOptions, job, &error);
    mReporter.report(error);
    return found;
}

QStringList PanelHost::printerKeys() const
{
    QStringList keys = mKeys;
    if (const auto &map = mCallback->map()) {
        for (const KeywordMap::Option &option : map->options()) {
            keys.removeAll(option.key);
        }
        keys += map->printerKeys();
    }
    return keys;
}

void PanelHost::removeMapped(JobOptions &options) const
{
    if (const auto &map = mCallback->map()) {
        map->removeAdded(options);
    }
}

QList<PanelHost::SummaryLine> PanelHost::summary() const
{
    QList<SummaryLine> lines;
    for (PDEPanel *panel : mPanels) {
        const QVariantMap info = panel->summaryInfo().value_or(QVariantMap());
        const QStringList order = info.value(kSummaryDisplayOrder).toStringList();
        for (const QString &title : order) {
            lines.append({title, info.value(title).toString()});
        }
    }
    return lines;
}

#include "moc_PanelHost.cpp"
