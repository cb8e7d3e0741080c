#include "host/PanelHost.h"

#include "host/PanelControls.h"
#include "host/ProblemReporter.h"
#include "printcore/Beep.h"
#include "printcore/NotificationCenter.h"

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

PanelHost::PanelHost(Target target, const PanelBundles &bundles, ProblemReporter &reporter)
    : mReporter(reporter)
    , mCallback(std::make_shared<DialogCallback>(std::move(target.ppd), std::move(target.printer),
                                                 std::move(target.paper),
                                                 std::move(target.settings)))
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
        const QStringList *keys = panel->supportedPPDOptionKeys();
        if (!keys || keys->isEmpty()) {
            mPanels.pop_back();
            continue;
        }
        mKeys += *keys;
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
    mRequests.set(key, choice);
    tellPanels(key, choice);
}

QWidget *PanelHost::view(PDEPanel &panel)
{
    QWidget *view = panel.panelView();
    if (!view) {
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
        applyRequests(panel);
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

void PanelHost::save(PDEPanel &panel)
{
    QString error;
    if (!panel.saveValuesAndReturnError(&error)) {
        mReporter.report(error);
    }
}

void PanelHost::applyRequests(PDEPanel &panel)
{
    const QStringList *keys = panel.supportedPPDOptionKeys();
    const bool isAsked =
        std::ranges::any_of(*keys, [this](const QString &key) { return mRequests.contains(key); });
    QWidget *view = isAsked ? panel.panelView() : nullptr;
    if (!view) {
        return;
    }
    for (const QString &key : *keys) {
        const QString choice = mRequests.value(key);
        if (choice.isNull()) {
            continue;
        }
        const int index = int(ppd().choices(key).indexOf(choice));
        if (!PanelControls(view).choose(key, index, choice)) {
            mReporter.report(QStringLiteral("%1=%2 cannot be chosen with the other settings; it "
                                            "stays %3")
                                 .arg(key, choice, ppd().markedChoice(key)));
        }
    }
}

void PanelHost::setPaper(const Paper &paper)
{
    mCallback->pageFormat()->setPaper(paper);
    NotificationCenter::defaultCenter().postNotification(kPaperDidChangeNotification,
                                                         mCallback.get());
    Q_EMIT summaryChanged();
}

const Paper &PanelHost::paper() const
{
    return *mCallback->pageFormat()->paper();
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
    JobOptions options;
    for (const QString &key : mKeys) {
        const QString choice = ppd().markedChoice(key);
        if (!choice.isNull()) {
            options.set(key, choice);
        }
    }
    return options;
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
