#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "cutoption/Preset.h"
#include "ppd/PDEUtilsMethod.h"
#include "ppd/PaperClass.h"
#include "preview/OptionView.h"
#include "printcore/IntegerValue.h"
#include "textinput/FieldEdits.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"

namespace {
void setState(CheckBox *box, bool on)
{
    if (box) {
        box->setState(on);
    }
}

/// The place of the selection itself, not of its equal; −1 when it is not in the list.
int indexOfIdentical(const ChoiceList *choices, const PDEChoice *selection)
{
    if (!choices || !selection) {
        return -1;
    }
    const int index = PDEUtilsMethod13::indexOfRecord(*choices, selection->choice());
    return index >= 0 && (*choices)[std::size_t(index)].get() == selection ? index : -1;
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
    const ChoiceList *choices = (this->*row.choices).get();
    if (!choices) {
        return nullptr;
    }
    const int index = markedOrDefaultIndex(row);
    const bool exists = index >= 0 && std::size_t(index) < choices->size();
    return exists ? (*choices)[std::size_t(index)].get() : current;
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
    const int index = indexOfIdentical((this->*row.choices).get(), this->*row.selection);
    if (index >= 0) {
        setState(box, index != 0);
    }
}

void OptionPDE13_v400_::showCutEverySelection()
{
    if (!mCutEvery_Selection || !mCutEvery_Choices) {
        return;
    }
    if (indexOfIdentical(mCutEvery_Choices.get(), mCutEvery_Selection) >= 0) {
        const QString count = QString::fromUtf8(mCutEvery_Selection->choice()->choice);
        FieldEdits::setText(mCutEveryTxBx, count);
        if (mCutEveryStpr) {
            mCutEveryStpr->setIntValue(integerValue(count));
        }
    }
    const int index = indexOfIdentical(mAutoCut_Choices.get(), mAutoCut_CutEvery_Selection);
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
                                   .showsCutMark = mCutMarkChkBx && !mCutMarkChkBx->isHidden()});
}

bool OptionPDE13_v400_::validateMenuItem(int tag) const
{
    return paperClass() != PaperClass::Flag || Preset::suitsFlagPaper(tag);
}
