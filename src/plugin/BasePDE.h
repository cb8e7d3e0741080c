// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPanel.h"
#include "plugin/PDEPluginCallback.h"
#include "ppd/ChoiceList.h"
#include "printcore/Bundle.h"

#include <QObject>
#include <QPointer>
#include <QSizeF>
#include <QWidget>

#include <array>
#include <memory>

struct Notification;

/**
 * The base of a panel: answers the dialog's protocol, binds the panel to the dialog's callback and
 * turns the protocol's calls into hooks that a panel overrides.
 */
class BasePDE13_v400_ : public QObject, public PDEPanel
{
    Q_OBJECT

public:
    ~BasePDE13_v400_() override;

    /// Loads the nib "OptionPDE" on first use; null when it has no view named "kPDEView".
    QWidget *panelView() override;
    /// The text "OP_PANEL_NAME", fetched once.
    QString panelName() override;
    QString panelKind() override;
    /// Saves the values, and answers nothing.
    std::optional<QStringList> supportedPPDOptionKeys() override;
    void printWindowWillClose() override {}
    void willShow() override;
    bool shouldHide() override { return true; }
    bool shouldPrint() override { return true; }
    bool shouldShowHelp() override { return false; }
    void PPDOptionKeyValueDidChange(const QString &, const QString &) override {}
    /// Always true.
    bool restoreValuesAndReturnError(QString *error) override;
    /// Always true.
    bool saveValuesAndReturnError(QString *error) override;
    std::optional<QVariantMap> summaryInfo() override { return std::nullopt; }

    /// Shows the selections in the controls.
    virtual void updateUI();

    /// Hook: sets the titles of the controls, on each show.
    virtual void initSetTitleTexts() {}
    /// Hook: initialises the controls, on each show.
    virtual void initUI() {}
    /// Hook: reads the values from the job.
    virtual void getValuesFromKey() {}
    /// Hook: writes the values to the job.
    virtual void setValuesToKey() {}
    /// Hook: shows the selections in the controls.
    virtual void setPDEItems() {}
    /// Hook: reads the marked choices into the selections.
    virtual void setPDEItems2() {}
    /// Hook: shows the selections of the item types in their controls.
    virtual void updateUIItem(quint32 itemType);
    /// Hook: reads the marked choices of the item types into their selections.
    virtual void updateMarkedSelections(quint32 itemType);
    /// Hook: the place of an item in the summary.
    virtual int indexForSummary(int item);

    /// The PPD's attribute "FileVersion"; null without a PPD or an attribute.
    virtual QString fileVerString() const;

    /// Whether the printer is of the label-printer series: the PPD's "KvTapeType" is "RV".
    virtual bool isRVPrinter() const;

    /**
     * Records the user's choice: tells the dialog and re-reads the item types' selections.
     *
     * @param item index of the choice.
     * @return the choice, owned by the list; null, and the dialog is told nothing, when there is
     *         none at the index.
     */
    virtual const PDEChoice *selectionForItem(int item, const QString &key,
                                              const ChoiceList &choices, quint32 itemType);

    /// Index of the choice that the PPD has marked for the key; −1 when there is none.
    virtual int indexOfMarkedOption(const ChoiceList &choices, const QString &key) const;

    /// Index of the first choice with that keyword; −1 when there is none.
    virtual int indexOfChoices(const ChoiceList &choices, const QString &value) const;

    /// Index of the PPD's default choice; −1 when there is none, but 0 for a list without choices.
    virtual int indexOfDefaultOption(const ChoiceList &choices) const;

    virtual void setSupportedOptions(std::optional<QStringList> options);
    /// What setSupportedOptions() stored; nothing before.
    virtual const std::optional<QStringList> &supportedOptions() const { return mSupportedOptions; }

    /**
     * Resizes the view and tells the dialog so: at once when the active window is more than 96
     * points taller than the view, else as soon as the view's place on the screen has changed. A
     * view that is gone by then is not waited for.
     *
     * @param size in points.
     */
    virtual void setViewFrameSize(const QSizeF &size);

    /// Ends the wait of setViewFrameSize().
    virtual void dialogDidExpand(const Notification &notification);

    /**
     * Tells the dialog the PPD's default for an option without a marked choice.
     *
     * @param option null for an absent one.
     * @param choices a list without choices stands for the option's first choice.
     * @param cStrKey the option's keyword, and again as @p nStrKey.
     */
    virtual void setDefaultChoices(const ppd_option_t *option, const ChoiceList &choices,
                                   const char *cStrKey, const QString &nStrKey);

    /// Always 0 here.
    virtual qint16 imageModeFlag() const { return mImageModeFlag; }

protected:
    /// @param callback the dialog, kept by the panel.
    /// @param bundle where the nib, the texts and the pictures are; kept by the panel.
    BasePDE13_v400_(std::shared_ptr<PDEPluginCallback13_v400_> callback,
                    std::shared_ptr<Bundle> bundle);

    /// Hook: finds the outlets of a nib that has been loaded, by object name.
    virtual void connectOutlets(QWidget *nib);
    /// Hook: the nib's outlets are connected.
    virtual void awakeFromNib() {}

    // What the panel shares goes in the opposite order, behind its view.
    std::shared_ptr<Bundle> nsPDEBundle;
    std::shared_ptr<PDEPluginCallback13_v400_> pdePluginCallbackObject;
    QString thePDEName;
    std::optional<QStringList> mSupportedOptions;
    QPointer<QWidget> kPDEView;
    ppd_file_t *ppd = nullptr;
    qint16 mImageModeFlag = 0;
    PMPrintSession printSession = nullptr;
    PMPrintSettings pmPrintSettings = nullptr;
    PMPrintSettings printSettings = nullptr;
    PMPageFormat formatSettings = nullptr;
    PMPrinter printer = nullptr;
    /// The printer's device URI in the system encoding; empty when unknown or over 254 bytes long.
    std::array<char, 256> deviceURI{};
    qint32 mLoadedNibFlg = 0;
    qint32 mFormattedItemFlg = 0;

private:
    void copyDeviceURI();
    /// No longer waits for the view's place on the screen to change.
    void stopWaitingFor(const QWidget *view);

    QPointer<QWidget> mNib;
};
