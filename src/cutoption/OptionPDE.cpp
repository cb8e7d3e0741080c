// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "ppd/PDEUtilsMethod.h"
#include "ppd/PaperClass.h"
#include "ppd/TapeInfo.h"
#include "printcore/NotificationCenter.h"

#include <span>

std::unique_ptr<OptionPDE13_v400_>
OptionPDE13_v400_::initWithCallback(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                                    std::shared_ptr<Bundle> bundle)
{
    if (!callback || !bundle) {
        return nullptr;
    }
    return std::unique_ptr<OptionPDE13_v400_>(
        new OptionPDE13_v400_(std::move(callback), std::move(bundle)));
}

OptionPDE13_v400_::OptionPDE13_v400_(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                                     std::shared_ptr<Bundle> bundle)
    : BasePDE13_v400_(std::move(callback), std::move(bundle))
    , mWords(*this, *this, nsPDEBundle)
{
    testConnection();
    const std::span rows(OptionCatalogue::rows);
    for (const OptionRow &row : rows.first(OptionCatalogue::HalfCut)) {
        bindOption(row);
    }
    if (isHSPaper()) {
        markAutoCutOff();
    }
    if (mAutoCut_Option && PDEUtilsMethod13::isSupportedItem(ppd, "KvAutoCutObjHidden")) {
        mAutoCutHideKey_dec = 1;
    }
    for (const OptionRow &row : rows.subspan(OptionCatalogue::HalfCut)) {
        bindOption(row);
    }
    NotificationCenter::defaultCenter().addObserver(
        this,
        [this](const Notification &notification) {
            checkChangeSettingWhenPageSizeChanged(notification);
        },
        kPaperDidChangeNotification);
}

OptionPDE13_v400_::~OptionPDE13_v400_()
{
    NotificationCenter::defaultCenter().removeObserver(this, kPaperDidChangeNotification, nullptr);
    delete mOptionView;
}

void OptionPDE13_v400_::testConnection()
{
    QString uri;
    if (PMPrinterCopyDeviceURI(printer, &uri) != noErr || uri.isNull()) {
        return;
    }
    const QString scheme = URLCopyScheme(uri);
    usb_dec = scheme == QLatin1String("usb") || scheme == QLatin1String("KVMQUSB");
}

void OptionPDE13_v400_::bindOption(const OptionRow &row)
{
    this->*row.option = ppdFindOption(ppd, row.keyword);
    this->*row.choices = PDEUtilsMethod13::arrayFromPPDOption(this->*row.option);
}

TapeInfo OptionPDE13_v400_::currentTapeInfo() const
{
    TapeInfo info;
    GetTapeInfo(printSession, pdePluginCallbackObject->printSettings(),
                pdePluginCallbackObject->pageFormat(), ppd, &info);
    return info;
}

bool OptionPDE13_v400_::isHSPaper() const
{
    const QString name = tapePaperName(pdePluginCallbackObject->printSettings(),
                                       pdePluginCallbackObject->pageFormat());
    return paperClassOf(name.toUtf8()) == PaperClass::HeatShrink;
}

PaperClass OptionPDE13_v400_::paperClass() const
{
    return paperClassOf(paperNameOfPageFormat(pdePluginCallbackObject->pageFormat()));
}

void OptionPDE13_v400_::markAutoCutOff()
{
    ppdMarkOption(ppd, OptionCatalogue::rows[OptionCatalogue::AutoCut].keyword, "OFF");
}

std::optional<QStringList> OptionPDE13_v400_::supportedPPDOptionKeys()
{
    if (!supportedOptions()) {
        setValuesToKey();
        QStringList keys;
        for (const OptionRow &row : OptionCatalogue::rows) {
            if (this->*row.option) {
                keys.append(QLatin1String(row.keyword));
            }
            // The cut-every box drives the auto-cut key where that has no option of its own.
            if (row.id == OptionCatalogue::CutEvery && mCutEvery_Option && !mAutoCut_Option) {
                keys.append(QLatin1String(OptionCatalogue::rows[OptionCatalogue::AutoCut].keyword));
            }
        }
        setSupportedOptions(keys);
    }
    return supportedOptions();
}

void OptionPDE13_v400_::initUI()
{
    if (set_formatSetting) {
        return;
    }
    initializeUI_CutLabel();
    initializeUI_CutAtEnd();
    initializeUI_Mirror();
    initializeUI_AutoCut();
    initializeUI_HalfCut();
    initializeUI_ChainPrint();
    initializeUI_SpecialTape();
    initializeUI_RemoveBlkSpace();
    initializeUI_CutMark();
    setValuesToKey();
    set_formatSetting = 1;
}

void OptionPDE13_v400_::setValuesToKey()
{
    saveSetting_CutLabel();
    saveSetting_CutAtEnd();
    saveSetting_Mirror();
    saveSetting_AutoCut();
    saveSetting_HalfCut();
    saveSetting_ChainPrint();
    saveSetting_SpecialTape();
    saveSetting_RemoveBlkSpace();
    saveSetting_CutMark();
}

void OptionPDE13_v400_::setPDEItems()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        updateUIItem(row.itemType);
    }
    updateUIItem(PopUpButtonItem);
}

void OptionPDE13_v400_::setPDEItems2()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        updateMarkedSelections(row.itemType);
    }
}

bool OptionPDE13_v400_::shouldPrint()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        setDefaultChoices(this->*row.option, this->*row.choices, row.keyword,
                          QLatin1String(row.keyword));
    }
    return BasePDE13_v400_::shouldPrint();
}

void OptionPDE13_v400_::PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice)
{
    const OptionRow *row = OptionCatalogue::rowForKeyword(key);
    if (row && !ppdChoice.isNull()) {
        this->*row->selection =
            PDEUtilsMethod13::findChoiceForString(ppdChoice, this->*row->choices);
    }
}

void OptionPDE13_v400_::checkChangeSettingWhenPageSizeChanged(const Notification &)
{
    if (isHSPaper()) {
        markAutoCutOff();
        updateMarkedSelections(CutEveryItem);
    }
    updateUI();
    enabledCheck_OP();
}

QString OptionPDE13_v400_::localized(const char *key) const
{
    return nsPDEBundle->localizedStringForKey(QLatin1String(key));
}

QString OptionPDE13_v400_::localizedOptionTitle(const OptionRow &row, const char *fallbackKey) const
{
    const ppd_option_t *option = ppdFindOption(ppd, row.keyword);
    const QString title = option ? PDEUtilsMethod13::newOptionTitle(option) : QString();
    return title.isNull() ? localized(fallbackKey) : nsPDEBundle->localizedStringForKey(title);
}

#include "moc_OptionPDE.cpp"
