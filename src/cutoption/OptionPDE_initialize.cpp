// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "ppd/PDEUtilsMethod.h"
#include "ppd/PaperClass.h"
#include "ppd/TapeInfo.h"
#include "printcore/IntegerValue.h"
#include "printcore/SystemEncoding.h"
#include "textinput/FieldEdits.h"
#include "toolkit/ControlState.h"

#include <cstring>

void OptionPDE13_v400_::initializeUI_CutLabel()
{
    const OptionRow &row = OptionCatalogue::rows[OptionCatalogue::CutEvery];
    setControlEnabled(mCutEveryChkBx, mCutEvery_Option);
    if (mCutEvery_Choices.isNull()) {
        return;
    }
    if (mCutEveryStr) {
        mCutEveryStr->setText(localized("RS_Labels"));
    }
    showTitleAndDefault(row);
    const QString count = SystemEncoding::decode(mCutEvery_Option->defchoice);
    if (mCutEveryTxBx) {
        setControlEnabled(mCutEveryTxBx, true);
        FieldEdits::setText(mCutEveryTxBx, count);
    }
    if (mCutEveryStpr) {
        setControlEnabled(mCutEveryStpr, true);
        mCutEveryStpr->setIntValue(integerValue(count));
    }
}

void OptionPDE13_v400_::initializeUI_CutAtEnd()
{
    initializeOption(OptionCatalogue::rows[OptionCatalogue::CutAtEnd]);
}

void OptionPDE13_v400_::initializeUI_Mirror()
{
    initializeOption(OptionCatalogue::rows[OptionCatalogue::Mirror]);
}

void OptionPDE13_v400_::initializeUI_AutoCut()
{
    const OptionRow &row = OptionCatalogue::rows[OptionCatalogue::AutoCut];
    if (mAutoCutHideKey_dec) {
        initializeOption(row);
    } else {
        setControlEnabled(mAutoCutChkBx, mAutoCut_Option);
    }
}

void OptionPDE13_v400_::initializeUI_HalfCut()
{
    initializeOption(OptionCatalogue::rows[OptionCatalogue::HalfCut]);
}

void OptionPDE13_v400_::initializeUI_ChainPrint()
{
    initializeOption(OptionCatalogue::rows[OptionCatalogue::ChainPrint]);
}

void OptionPDE13_v400_::initializeUI_SpecialTape()
{
    initializeOption(OptionCatalogue::rows[OptionCatalogue::SpecialTape]);
}

void OptionPDE13_v400_::initializeUI_RemoveBlkSpace()
{
    setTapeState(currentTapeInfo().tapeState);
    setControlEnabled(mRemoveBlkSpaceChkBx, mTapeState == 0 || mTapeState == 2);
    showTitleAndDefault(OptionCatalogue::rows[OptionCatalogue::RemoveBlkSpace]);
}

void OptionPDE13_v400_::initializeUI_CutMark()
{
    initializeOption(OptionCatalogue::rows[OptionCatalogue::CutMark]);
}

void OptionPDE13_v400_::initializeOption(const OptionRow &row)
{
    setControlEnabled(this->*row.checkBox, this->*row.option);
    showTitleAndDefault(row);
}

void OptionPDE13_v400_::showTitleAndDefault(const OptionRow &row)
{
    CheckBox *box = this->*row.checkBox;
    const ChoiceList &choices = this->*row.choices;
    if (!box || choices.isNull()) {
        return;
    }
    box->setTitle(localizedOptionTitle(row, row.labelKey));
    if (const PDEChoice *first = choices.at(0)) {
        const ppd_option_t *option = first->choice()->option;
        box->setState(std::strncmp(option->defchoice, row.checkedKeyword, PPD_MAX_NAME) == 0);
    }
}

void OptionPDE13_v400_::enabledCheck_OP()
{
    const PaperClass paper = paperClass();
    const bool isFLPaper = paper == PaperClass::Flag;
    setControlEnabled(mRemoveBlkSpaceChkBx, !isLabelPaper(paper));
    if (isFLPaper) {
        setControlEnabled(mHalfCutChkBx, false);
    }
    if (isControlShown(mSpecialTapeChkBx)) {
        applySpecialTapeRules(isFLPaper);
    }
    applyCutEveryRules();
    mWords.noteChange(isFLPaper);
}

void OptionPDE13_v400_::applySpecialTapeRules(bool isFLPaper)
{
    setControlEnabled(mSpecialTapeChkBx, !isFLPaper);
    if (isFLPaper) {
        setControlEnabled(mChainPrintChkBx, false);
        return;
    }
    const bool others = !mSpecialTapeChkBx->isChecked();
    setControlEnabled(mAutoCutChkBx, others);
    setControlEnabled(mChainPrintChkBx, others);
    setControlEnabled(mHalfCutChkBx, others);
    setControlEnabled(mCutEveryChkBx, others);
    if (others) {
        return;
    }
    setControlEnabled(mCutEveryTxBx, false);
    if (isControlEnabled(mCutEveryStpr)) {
        setControlEnabled(mCutEveryStpr, false);
        PDEUtilsMethod13::setEnabledForText(0, mCutEveryStr);
    }
}

void OptionPDE13_v400_::applyCutEveryRules()
{
    if (!isControlEnabled(mCutEveryChkBx)) {
        return;
    }
    const bool field = isControlEnabled(mCutEveryTxBx);
    const bool stepper = isControlEnabled(mCutEveryStpr);
    const bool isOn = mCutEveryChkBx->isChecked();
    if (field == stepper && field != isOn) {
        setCountEnabled(isOn);
    }
}

void OptionPDE13_v400_::setCountEnabled(bool enabled)
{
    setControlEnabled(mCutEveryTxBx, enabled);
    setControlEnabled(mCutEveryStpr, enabled);
    PDEUtilsMethod13::setEnabledForText(enabled ? 1 : 0, mCutEveryStr);
}
