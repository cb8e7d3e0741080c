#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "ppd/PDEUtilsMethod.h"
#include "ppd/TapeInfo.h"
#include "preview/OptionView.h"
#include "printcore/IntegerValue.h"
#include "textinput/FieldEdits.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"

namespace {
constexpr int firstTag = 1;
constexpr int lastTag = 17;

/// What a preset does to one check box.
enum Setting : qint8 {
    Off = 0,
    On = 1,
    Keep = -1,
};

/// The columns of the preset table.
constexpr OptionCatalogue::Option presetColumns[] = {
    OptionCatalogue::AutoCut, OptionCatalogue::CutEvery,   OptionCatalogue::CutAtEnd,
    OptionCatalogue::HalfCut, OptionCatalogue::ChainPrint, OptionCatalogue::SpecialTape,
    OptionCatalogue::CutMark,
};

/// One row per tag, from firstTag on. Every preset turns mirror printing off besides.
constexpr Setting presetSettings[lastTag][std::size(presetColumns)] = {
    // auto, every, end, half, chain, special, mark
    {Keep, Off, Off, Keep, Keep, Keep, Keep}, {Keep, Off, On, Keep, Keep, Keep, Keep},
    {Keep, On, Off, Keep, Keep, Keep, Keep},  {Keep, On, On, Keep, Keep, Keep, Keep},
    {Off, Off, Keep, Off, Off, Off, Keep},    {Off, Off, Keep, Off, On, Off, Keep},
    {Off, Off, Keep, On, Off, Off, Keep},     {Off, Off, Keep, On, On, Off, Keep},
    {On, On, Keep, Off, Off, Off, Keep},      {On, On, Keep, Off, On, Off, Keep},
    {On, On, Keep, On, Off, Off, Keep},       {On, On, Keep, On, On, Off, Keep},
    {Keep, Keep, Keep, Keep, Keep, On, Keep}, {Keep, Keep, Keep, Keep, Off, Keep, On},
    {Keep, Keep, Keep, Keep, On, Keep, On},   {Keep, Keep, Keep, Keep, On, Keep, Off},
    {Keep, Keep, Keep, Keep, Off, Keep, Off},
};

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

int tagOfLabelSeries(bool every, bool atEnd)
{
    return firstTag + 2 * int(every) + int(atEnd);
}

int tagOnFLPaper(bool anyCut, bool half)
{
    if (half) {
        return 1;
    }
    return anyCut ? 9 : 5;
}

int tagOfCutMarkModel(bool mark, bool chain)
{
    if (mark) {
        return chain ? 15 : 14;
    }
    return chain ? 16 : 17;
}
} // namespace

void OptionPDE13_v400_::updateMarkedSelections(quint32 itemType)
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (!(itemType & row.itemType) || !(this->*row.option)) {
            continue;
        }
        this->*row.selection = markedChoice(row, this->*row.selection);
        if (row.itemType == CutEveryItem) {
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
    if (row.itemType == CutEveryItem) {
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
    if (tag < firstTag || tag > lastTag) {
        return;
    }
    const auto &settings = presetSettings[tag - firstTag];
    for (std::size_t i = 0; i < std::size(presetColumns); ++i) {
        if (settings[i] != Keep) {
            setState(this->*OptionCatalogue::rows[presetColumns[i]].checkBox, settings[i] == On);
        }
    }
    setState(mMirrorPrintChkBx, false);
}

int OptionPDE13_v400_::targetPopUpButtonTag() const
{
    const QByteArray paperName = paperNameOfPageFormat(pdePluginCallbackObject->pageFormat());
    const bool special = isOn(mSpecialTapeChkBx);
    const bool every = !special && isOn(mCutEveryChkBx);
    const bool half = !special && isOn(mHalfCutChkBx);
    const bool autoCut = !special && isOn(mAutoCutChkBx);
    const bool chain = !special && isOn(mChainPrintChkBx);
    const bool anyCut = autoCut || every;

    if (isRVPrinter()) {
        return tagOfLabelSeries(every, isOn(mCutAndEndChkBx));
    }
    if (paperName.startsWith("FL")) {
        return tagOnFLPaper(anyCut, half);
    }
    if (mCutMarkChkBx && !mCutMarkChkBx->isHidden()) {
        return tagOfCutMarkModel(isOn(mCutMarkChkBx), chain);
    }
    return special ? 13 : 5 + 4 * int(anyCut) + 2 * int(half) + int(chain);
}
