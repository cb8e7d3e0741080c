// SPDX-License-Identifier: Apache-2.0
#include "plugin/BasePDE.h"

#include "ppd/PDEUtilsMethod.h"
#include "printcore/NotificationCenter.h"
#include "printcore/SystemEncoding.h"
#include "textinput/PDETextField.h"
#include "toolkit/NibLoader.h"
#include "toolkit/TrackingArea.h"
#include "toolkit/ViewGeometry.h"

#include <QApplication>

#include <cstring>

namespace {
/// How much taller than the view a window must be to hold it with the dialog's own controls.
constexpr double dialogHeightAroundView = 96.0;
} // namespace

BasePDE13_v400_::BasePDE13_v400_(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                                 std::shared_ptr<Bundle> bundle)
    : nsPDEBundle(std::move(bundle))
    , pdePluginCallbackObject(std::move(callback))
{
    printSession = pdePluginCallbackObject->printSession();
    pmPrintSettings = pdePluginCallbackObject->printSettings();
    printSettings = pdePluginCallbackObject->printSettings();
    formatSettings = pdePluginCallbackObject->pageFormat();
    printer = pdePluginCallbackObject->PMPrinter();
    ppd = pdePluginCallbackObject->ppdFile();
    copyDeviceURI();
}

BasePDE13_v400_::~BasePDE13_v400_()
{
    NotificationCenter::defaultCenter().removeObserver(this);
    delete kPDEView;
    delete mNib;
}

void BasePDE13_v400_::copyDeviceURI()
{
    QString uri;
    if (PMPrinterCopyDeviceURI(printer, &uri) != noErr || uri.isNull()) {
        return;
    }
    const auto bytes = SystemEncoding::encode(uri);
    if (bytes && std::size_t(bytes->size()) < deviceURI.size() - 1) {
        std::memcpy(deviceURI.data(), bytes->constData(), std::size_t(bytes->size()));
    }
}

QWidget *BasePDE13_v400_::panelView()
{
    if (!kPDEView) {
        delete mNib;
        const NibClass textField = NibClass::of<PDETextField13_v400_>();
        mNib = NibLoader::load(
                   nsPDEBundle->pathForResource(QStringLiteral("OptionPDE"), QStringLiteral("ui")),
                   nullptr, {&textField, 1})
                   .release();
        if (mNib) {
            connectOutlets(mNib);
            awakeFromNib();
        }
    }
    return kPDEView;
}

void BasePDE13_v400_::connectOutlets(QWidget *nib)
{
    const QString name = QStringLiteral("kPDEView");
    kPDEView = nib->objectName() == name ? nib : nib->findChild<QWidget *>(name);
    if (const QWidget *view = kPDEView) {
        new TrackingArea(kPDEView);
        // Another object may come to have the view's address.
        connect(view, &QObject::destroyed, this, [this, view] { stopWaitingFor(view); });
    }
}

QString BasePDE13_v400_::panelName()
{
    if (thePDEName.isNull()) {
        thePDEName = nsPDEBundle->localizedStringForKey(QStringLiteral("OP_PANEL_NAME"));
    }
    return thePDEName;
}

QString BasePDE13_v400_::panelKind()
{
    return QStringLiteral("jp.co.vendor.printer.cups.pde.OptionPDEKind");
}

std::optional<QStringList> BasePDE13_v400_::supportedPPDOptionKeys()
{
    setValuesToKey();
    return std::nullopt;
}

void BasePDE13_v400_::willShow()
{
    initSetTitleTexts();
    initUI();
    updateUI();
}

bool BasePDE13_v400_::restoreValuesAndReturnError(QString *)
{
    setPDEItems2();
    updateUI();
    return true;
}

bool BasePDE13_v400_::saveValuesAndReturnError(QString *)
{
    setValuesToKey();
    return true;
}

void BasePDE13_v400_::updateUI()
{
    setPDEItems();
}

void BasePDE13_v400_::updateUIItem(quint32) {}

void BasePDE13_v400_::updateMarkedSelections(quint32) {}

int BasePDE13_v400_::indexForSummary(int)
{
    return 0;
}

QString BasePDE13_v400_::fileVerString() const
{
    return ppd ? PDEUtilsMethod13::ppdAttrValStr(ppd, "FileVersion") : QString();
}

bool BasePDE13_v400_::isRVPrinter() const
{
    return ppd && PDEUtilsMethod13::ppdAttrValStr(ppd, "KvTapeType") == QLatin1String("RV");
}

const PDEChoice *BasePDE13_v400_::selectionForItem(int item, const QString &key,
                                                   const ChoiceList &choices, quint32 itemType)
{
    const PDEChoice *choice = choices.at(item);
    if (choice) {
        pdePluginCallbackObject->willChangePPDOptionKeyValue(key, choice->ppdTitle());
        updateMarkedSelections(itemType);
    }
    return choice;
}

int BasePDE13_v400_::indexOfMarkedOption(const ChoiceList &choices, const QString &key) const
{
    const ppd_choice_t *marked = ppd ? ppdFindMarkedChoice(ppd, key.toUtf8().constData()) : nullptr;
    return marked ? indexOfChoices(choices, QString::fromUtf8(marked->choice)) : -1;
}

int BasePDE13_v400_::indexOfChoices(const ChoiceList &choices, const QString &value) const
{
    return value.isNull() ? -1 : choices.indexOf(value);
}

int BasePDE13_v400_::indexOfDefaultOption(const ChoiceList &choices) const
{
    return choices.isEmpty() ? 0 : choices.indexOfDefault();
}

void BasePDE13_v400_::setSupportedOptions(std::optional<QStringList> options)
{
    mSupportedOptions = std::move(options);
}

void BasePDE13_v400_::setViewFrameSize(const QSizeF &size)
{
    if (!pdePluginCallbackObject->respondsToPanelViewDidResize()) {
        return;
    }
    setFrameSize(kPDEView, size);
    const QWidget *keyWindow = QApplication::activeWindow();
    if (!keyWindow) {
        return;
    }
    const double windowHeight = keyWindow->frameGeometry().height() / pixelsPerPoint(kPDEView);
    if (windowHeight > size.height() + dialogHeightAroundView) {
        pdePluginCallbackObject->panelViewDidResize();
        return;
    }
    if (kPDEView) {
        NotificationCenter::defaultCenter().addObserver(
            this, [this](const Notification &notification) { dialogDidExpand(notification); },
            NSViewDidUpdateTrackingAreasNotification, kPDEView);
    }
}

void BasePDE13_v400_::dialogDidExpand(const Notification &)
{
    stopWaitingFor(kPDEView);
    pdePluginCallbackObject->panelViewDidResize();
}

void BasePDE13_v400_::stopWaitingFor(const QWidget *view)
{
    NotificationCenter::defaultCenter().removeObserver(
        this, NSViewDidUpdateTrackingAreasNotification, view);
}

void BasePDE13_v400_::setDefaultChoices(const ppd_option_t *option, const ChoiceList &choices,
                                        const char *cStrKey, const QString &nStrKey)
{
    if (!option || ppdFindMarkedChoice(ppd, cStrKey)) {
        return;
    }
    const int index = indexOfDefaultOption(choices);
    if (index < 0 || index >= option->num_choices) {
        return;
    }
    pdePluginCallbackObject->willChangePPDOptionKeyValue(
        nStrKey, QString::fromUtf8(option->choices[index].choice));
}

#include "moc_BasePDE.cpp"
