// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "ppd/PaperClass.h"
#include "ppd/TapeInfo.h"
#include "toolkit/ControlState.h"

#include <algorithm>

void OptionPDE13_v400_::saveSetting_CutLabel()
{
    if (mCutEvery_Choices.isEmpty() || !pmPrintSettings) {
        return;
    }
    const OptionRow &row = OptionCatalogue::rows[OptionCatalogue::CutEvery];
    // The field's own value has already been recorded as the marked choice.
    const int index = mCutEveryTxBx
                          ? indexOfMarkedOption(mCutEvery_Choices, QLatin1String(row.keyword))
                          : markedOrDefaultIndex(row);
    if (!mAutoCutHideKey_dec) {
        saveAutoCutOfCutEvery();
    }
    savePair(mCutEvery_Option, mCutEvery_Choices, index);
}

void OptionPDE13_v400_::saveAutoCutOfCutEvery()
{
    if (!mAutoCut_Option) {
        return;
    }
    const int index = mCutEveryTxBx
                          ? indexForSaveAutoChain(mCutEveryChkBx)
                          : markedOrDefaultIndex(OptionCatalogue::rows[OptionCatalogue::AutoCut]);
    pdePluginCallbackObject->willChangePPDOptionKeyValue(
        QString::fromUtf8(mAutoCut_Option->keyword),
        index == 1 ? QStringLiteral("ON") : QStringLiteral("OFF"));
}

void OptionPDE13_v400_::saveSetting_CutAtEnd()
{
    saveOption(OptionCatalogue::rows[OptionCatalogue::CutAtEnd]);
}

void OptionPDE13_v400_::saveSetting_Mirror()
{
    saveOption(OptionCatalogue::rows[OptionCatalogue::Mirror]);
}

void OptionPDE13_v400_::saveSetting_AutoCut()
{
    if (mAutoCutHideKey_dec) {
        saveOption(OptionCatalogue::rows[OptionCatalogue::AutoCut]);
    }
}

void OptionPDE13_v400_::saveSetting_HalfCut()
{
    saveOption(OptionCatalogue::rows[OptionCatalogue::HalfCut]);
}

void OptionPDE13_v400_::saveSetting_ChainPrint()
{
    saveOption(OptionCatalogue::rows[OptionCatalogue::ChainPrint]);
}

void OptionPDE13_v400_::saveSetting_SpecialTape()
{
    saveOption(OptionCatalogue::rows[OptionCatalogue::SpecialTape]);
}

void OptionPDE13_v400_::saveSetting_RemoveBlkSpace()
{
    setTapeState(currentTapeInfo().tapeState);
    // Unlike the initialiser, which enables the box for custom sizes too.
    setControlEnabled(mRemoveBlkSpaceChkBx, mTapeState == 0);
    mWords.noteChange(paperClass() == PaperClass::Flag);
    saveOption(OptionCatalogue::rows[OptionCatalogue::RemoveBlkSpace]);
}

void OptionPDE13_v400_::saveSetting_CutMark()
{
    saveOption(OptionCatalogue::rows[OptionCatalogue::CutMark]);
}

void OptionPDE13_v400_::saveOption(const OptionRow &row)
{
    const ChoiceList &choices = this->*row.choices;
    if (!choices.isNull() && pmPrintSettings) {
        savePair(this->*row.option, choices, indexToSave(row));
    }
}

int OptionPDE13_v400_::indexToSave(const OptionRow &row) const
{
    const CheckBox *box = this->*row.checkBox;
    if (!box) {
        return markedOrDefaultIndex(row);
    }
    return row.offUnderSpecialTape ? indexForSaveAutoChain(box) : int(box->isChecked());
}

int OptionPDE13_v400_::markedOrDefaultIndex(const OptionRow &row) const
{
    const ChoiceList &choices = this->*row.choices;
    const int marked = indexOfMarkedOption(choices, QLatin1String(row.keyword));
    return marked >= 0 || choices.isNull() ? marked : indexOfDefaultOption(choices);
}

void OptionPDE13_v400_::savePair(const ppd_option_t *option, const ChoiceList &choices, int index)
{
    if (!option || choices.isEmpty()) {
        return;
    }
    const int clamped = std::clamp(index, 0, choices.size() - 1);
    pdePluginCallbackObject->willChangePPDOptionKeyValue(QString::fromUtf8(option->keyword),
                                                         choices.at(clamped)->ppdTitle());
}

qint32 OptionPDE13_v400_::indexForSaveAutoChain(const QAbstractButton *checkBox) const
{
    return checkBox && !isOn(mSpecialTapeChkBx) ? qint32(checkBox->isChecked()) : 0;
}
