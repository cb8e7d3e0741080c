// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/CountBounds.h"
#include "cutoption/OptionCatalogue.h"
#include "ppd/TapeInfo.h"
#include "preview/OptionView.h"
#include "printcore/IntegerValue.h"
#include "textinput/FieldEdits.h"
#include "toolkit/Alert.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"

#include <algorithm>

namespace {
qint32 clampedTo(const CountBounds &bounds, qint32 count)
{
    if (count < bounds.smallest) {
        return bounds.smallest;
    }
    return std::min(count, bounds.largest);
}
} // namespace

void OptionPDE13_v400_::takeTick(CheckBox *box)
{
    if (box->isEnabled()) {
        changeOption(box);
    } else {
        box->setState(!box->isChecked());
    }
}

void OptionPDE13_v400_::takeCount(QLineEdit *field, const QString &before)
{
    if (field->isEnabled()) {
        controlTextDidChange(field);
    } else {
        FieldEdits::setText(field, before);
    }
}

void OptionPDE13_v400_::changeOption(QAbstractButton *sender)
{
    if (mOptionView) {
        mOptionView->update();
    }
    const auto &rows = OptionCatalogue::rows;
    const auto *row = std::find_if(rows.begin(), rows.end(), [this, sender](const OptionRow &r) {
        return sender && (this->*r.checkBox).data() == sender;
    });
    if (row != rows.end()) {
        const bool isOn = sender->isChecked();
        const bool isCutEvery = row->id == OptionCatalogue::CutEvery;
        if (isCutEvery && isOn && isHSPaper()) {
            openAlert(kPDEView, panelName(), localized("RS_Alrt_AutoCutWithHS"));
        }
        // The cut-every box drives the auto-cut keyword; its count is the field's business.
        const OptionRow &recorded = isCutEvery ? rows[OptionCatalogue::AutoCut] : *row;
        recordChoice(isOn ? 1 : 0, recorded.keyword, this->*recorded.choices, row->itemType);
    }
    enabledCheck_OP();
}

void OptionPDE13_v400_::recordChoice(int index, const char *keyword, const ChoiceList &choices,
                                     quint32 itemType)
{
    selectionForItem(index, QLatin1String(keyword), choices, itemType);
    updateUIItem(itemType);
}

void OptionPDE13_v400_::changeOptionPopUpButton(QObject *)
{
    updateUIItem(PopUpButtonItem);
}

void OptionPDE13_v400_::changeCutEveryValue(QObject *sender)
{
    const CountBounds bounds = CountBounds::of(mCutEvery_Choices);
    qint32 count = 0;
    if (sender && (sender == mCutEveryStpr || sender == mCutEveryTxBx)) {
        const qint32 entered = sender == mCutEveryStpr ? mCutEveryStpr->intValue()
                                                       : integerValue(mCutEveryTxBx->text());
        count = clampedTo(bounds, entered);
        if (mCutEveryStpr) {
            mCutEveryStpr->setIntValue(count);
        }
        FieldEdits::setText(mCutEveryTxBx, QString::number(count));
    }
    const qint64 index = qint64(count) - bounds.smallest;
    recordChoice(int(std::clamp<qint64>(index, -1, std::numeric_limits<int>::max())),
                 OptionCatalogue::rows[OptionCatalogue::CutEvery].keyword, mCutEvery_Choices,
                 CutEveryItem);
}

void OptionPDE13_v400_::controlTextDidChange(QObject *field)
{
    if (field && field == mCutEveryTxBx) {
        changeCutEveryValue(field);
    }
}
