// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "cutoption/Preset.h"
#include "ppd/PaperClass.h"
#include "printcore/IntegerValue.h"
#include "textinput/FieldEdits.h"
#include "toolkit/ControlState.h"

namespace {
void setState(CheckBox *box, bool on)
{
    if (box) {
        box->setState(on);
    }
}
} // namespace

void OptionPDE13_v400_::updateMarkedSelections(quint32 itemType)
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (!(itemType & row.itemType) || !(this->*row.option)) {
            continue;
        }
        this->*row.selection = markedChoice(row, this->*row.selection);
        if (row.id == OptionCatalogue::CutEvery) {
            mAutoCut_CutEvery_Selection = markedChoice(
                OptionCatalogue::rows[OptionCatalogue::AutoCut], mAutoCut_CutEvery_Selection);
        }
    }
}

const PDEChoice *OptionPDE13_v400_::markedChoice(const OptionRow &row,
                                                 const PDEChoice *current) const
{
    const ChoiceList &choices = this->*row.choices;
    const PDEChoice *marked = choices.at(markedOrDefaultIndex(row));
    return marked || choices.isNull() ? marked : current;
}

void OptionPDE13_v400_::updateUIItem(quint32 itemType)
{
    if (itemType & PopUpButtonItem) {
        applyPreset(mOptionPopUpButton ? mOptionPopUpButton->selectedTag().value_or(0) : 0);
    } else {
        for (const OptionRow &row : OptionCatalogue::rows) {
            if (itemType & row.itemType) {
                showSelection(row);
            }
        }
        if (mOptionPopUpButton) {
            mOptionPopUpButton->selectItemWithTag(targetPopUpButtonTag());
        }
    }
    enabledCheck_OP();
    if (mOptionView) {
        mOptionView->update();
    }
}

void OptionPDE13_v400_::showSelection(const OptionRow &row)
{
    if (row.id == OptionCatalogue::CutEvery) {
        showCutEverySelection();
        return;
    }
    CheckBox *box = this->*row.checkBox;
    if (row.keptWhileDisabled && !isControlEnabled(box)) {
        return;
    }
    const int index = (this->*row.choices).indexOf(this->*row.selection);
    if (index >= 0) {
        setState(box, index != 0);
    }
}

void OptionPDE13_v400_::showCutEverySelection()
{
    if (!mCutEvery_Selection || mCutEvery_Choices.isNull()) {
        return;
    }
    if (mCutEvery_Choices.indexOf(mCutEvery_Selection) >= 0) {
        const QString count = QString::fromUtf8(mCutEvery_Selection->choice()->choice);
        FieldEdits::setText(mCutEveryTxBx, count);
        if (mCutEveryStpr) {
            mCutEveryStpr->setIntValue(integerValue(count));
        }
    }
    const int index = mAutoCut_Choices.indexOf(mAutoCut_CutEvery_Selection);
    if (index >= 0) {
        setState(mCutEveryChkBx, index != 0);
    }
}

void OptionPDE13_v400_::applyPreset(int tag)
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (const auto isOn = Preset::settingOf(tag, row.id)) {
            setState(this->*row.checkBox, *isOn);
        }
    }
}

int OptionPDE13_v400_::targetPopUpButtonTag() const
{
    return Preset::tagOf(strip(), {.isLabelSeries = isRVPrinter(),
                                   .hasFlagPaper = paperClass() == PaperClass::Flag,
                                   .showsCutMark = isControlShown(mCutMarkChkBx)});
}

bool OptionPDE13_v400_::validateMenuItem(int tag) const
{
    return paperClass() != PaperClass::Flag || Preset::suitsFlagPaper(tag);
}
