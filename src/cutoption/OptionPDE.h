// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cutoption/OptionOutlets.h"
#include "cutoption/OptionRecords.h"
#include "cutoption/OptionWords.h"
#include "plugin/BasePDE.h"
#include "plugin/PDEPanelAutomation.h"

class QAbstractButton;
struct OptionRow;
enum class PaperClass;
struct TapeInfo;

/**
 * The cut-option panel: shows the finishing options that the printer's PPD has, keeps them
 * consistent with each other, the printer and the medium, and tells the dialog every choice. What
 * the nine options have in common is in OptionCatalogue.
 */
class OptionPDE13_v400_ : public BasePDE13_v400_,
                          public PDEPanelAutomation,
                          protected OptionOutlets,
                          protected OptionRecords
{
    Q_OBJECT

public:
    /**
     * Binds the printer's options and starts to follow the paper.
     *
     * @param callback the dialog, kept by the panel; what it lends must outlive the panel.
     * @param bundle where the nib, the texts and the pictures are; kept by the panel.
     * @return null when the callback or the bundle is.
     */
    static std::unique_ptr<OptionPDE13_v400_>
    initWithCallback(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                     std::shared_ptr<Bundle> bundle);
    ~OptionPDE13_v400_() override;

    // Savers: each tells the dialog the option's choice, as its control shows it.
    void saveSetting_CutLabel();
    void saveSetting_CutAtEnd();
    void saveSetting_Mirror();
    void saveSetting_AutoCut();
    void saveSetting_HalfCut();
    void saveSetting_ChainPrint();
    void saveSetting_SpecialTape();
    void saveSetting_RemoveBlkSpace();
    void saveSetting_CutMark();

    /// The box's state as a choice index; 0 for null or while special tape is shown and on.
    qint32 indexForSaveAutoChain(const QAbstractButton *checkBox) const;

    // Initialisers: each titles an option's control and sets it from the PPD's default.
    void initializeUI_OtherStr() {}
    void initializeUI_CutLabel();
    void initializeUI_CutAtEnd();
    void initializeUI_Mirror();
    void initializeUI_AutoCut();
    void initializeUI_HalfCut();
    void initializeUI_ChainPrint();
    void initializeUI_SpecialTape();
    void initializeUI_RemoveBlkSpace();
    void initializeUI_CutMark();

    /// Enables and disables the controls as the paper and the other controls demand.
    void enabledCheck_OP();

    /// The medium class of the current paper, TapeInfo::tapeState.
    void setTapeState(qint32 state) { mTapeState = state; }
    qint32 getTapeState() const { return mTapeState; }

    /// The user ticked a check box or took the tick away.
    void changeOption(QAbstractButton *sender);
    /// The user chose a preset from the menu.
    void changeOptionPopUpButton(QObject *sender);
    /// The user changed the count with the stepper or in the text field.
    void changeCutEveryValue(QObject *sender);
    /// The user edited a text field.
    void controlTextDidChange(QObject *field);

    /// The keywords of the PPD's options among the nine; the same list on every call.
    std::optional<QStringList> supportedPPDOptionKeys() override;
    /// Tells the dialog the PPD's default for every option without a marked choice.
    bool shouldPrint() override;
    /// Records the choice as the option's selection.
    void PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice) override;
    /// One line for each option that has a selection.
    std::optional<QVariantMap> summaryInfo() override;

    PDEPanelAutomation *automation() override { return this; }
    bool isRVPrinter() const override { return BasePDE13_v400_::isRVPrinter(); }
    QList<PDEPreset> presets() const override;
    bool choosePreset(const QString &identifier) override;
    QJsonObject state() const override;

    /// Initialises and saves every option, once.
    void initUI() override;
    void setValuesToKey() override;
    void setPDEItems() override;
    void setPDEItems2() override;
    void updateMarkedSelections(quint32 itemType) override;
    void updateUIItem(quint32 itemType) override;

    /// The dialog's tab view shows another tab.
    void tabView_didSelectTabViewItem(QWidget *, QWidget *) {}

    /// The tag of the preset that describes the check boxes, 1 to 17.
    int targetPopUpButtonTag() const;
    /// Whether the preset with the tag can be chosen on the current paper.
    bool validateMenuItem(int tag) const;

    /// The dialog has another paper.
    void checkChangeSettingWhenPageSizeChanged(const Notification &notification);

protected:
    OptionPDE13_v400_(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                      std::shared_ptr<Bundle> bundle);

    void connectOutlets(QWidget *nib) override;
    /// Lays out the rows of the options that the PPD has, and puts the preview in its place.
    void awakeFromNib() override;

    qint8 checkValues_dec = 1;
    quint8 column_dec = 0;
    /// 1 once initUI() has run.
    quint8 set_formatSetting = 0;
    /// 1 when auto cut has a check box of its own; at 0 it follows the cut-every box.
    quint8 mAutoCutHideKey_dec = 0;
    qint32 mTapeState = 0;
    /// 1 when the printer is connected by USB.
    quint8 usb_dec = 0;
    float choice_PaperSize = 0.0F;

private:
    void testConnection();
    void bindOption(const OptionRow &row);
    void connectActions();
    void nameOptions();
    /// How many points the titles of the rows lack; 0 when they fit.
    double widthMissingForTitles() const;

    TapeInfo currentTapeInfo() const;
    bool isHSPaper() const;
    PaperClass paperClass() const;
    void markAutoCutOff();

    QString localized(const char *key) const;
    QString localizedOptionTitle(const OptionRow &row, const char *fallbackKey) const;

    void initializeOption(const OptionRow &row);
    void showTitleAndDefault(const OptionRow &row);
    void applySpecialTapeRules(bool isFLPaper);
    void applyCutEveryRules();
    void setCountEnabled(bool enabled);

    /// Somebody ticked a box: as a click, which does nothing to a disabled one.
    void takeTick(CheckBox *box);
    /// Somebody edited the count: as keys, which do nothing to a disabled field.
    void takeCount(QLineEdit *field, const QString &before);
    void recordChoice(int index, const char *keyword, const ChoiceList &choices, quint32 itemType);

    void saveOption(const OptionRow &row);
    int indexToSave(const OptionRow &row) const;
    int markedOrDefaultIndex(const OptionRow &row) const;
    void savePair(const ppd_option_t *option, const ChoiceList &choices, int index);
    void saveAutoCutOfCutEvery();

    const PDEChoice *markedChoice(const OptionRow &row, const PDEChoice *current) const;
    void showSelection(const OptionRow &row);
    void showCutEverySelection();
    void applyPreset(int tag);

    QString yesNoSummary(const OptionRow &row) const;
    QString cutEverySummary() const;

    OptionWords mWords;
};
