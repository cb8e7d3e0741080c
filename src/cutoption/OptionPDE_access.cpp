#include "cutoption/OptionPDE.h"

#include "cutoption/CountBounds.h"
#include "cutoption/GreyReason.h"
#include "cutoption/OptionCatalogue.h"
#include "cutoption/StripWords.h"
#include "ppd/PaperClass.h"
#include "preview/OptionView.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"
#include "toolkit/Tip.h"

void OptionPDE13_v400_::describeControls()
{
    if (PopUpButton *popUp = mOptionPopUpButton) {
        popUp->setAccessibleName(localized("RS_Presets"));
        popUp->setAccessibleDescription(localized("RS_Help_Presets"));
        popUp->setGreyReason(localized("RS_Why_Tape"));
    }
    if (mCutEveryTxBx) {
        mCutEveryTxBx->setAccessibleName(localized("RS_CutEveryCount"));
    }
    if (Stepper *stepper = mCutEveryStpr) {
        const CountBounds bounds = CountBounds::of(mCutEvery_Choices.get());
        stepper->setAccessibleName(localized("RS_CutEveryCount"));
        stepper->setStepNames(localized("RS_Increase"), localized("RS_Decrease"));
        stepper->setBounds(bounds.smallest, bounds.largest);
        stepper->setField(mCutEveryTxBx);
    }
    mOptionView->setAccessibleName(localized("RS_Preview"));
    explainControls();
}

void OptionPDE13_v400_::explainControls()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        CheckBox *box = this->*row.checkBox;
        setTip(box, isControlEnabled(box) ? localized(row.helpKey)
                                          : textOf(GreyReason::ofOption(row.id, greyCauses(row))));
    }
    explainCount();
    setTip(mOptionView, stripText());
}

void OptionPDE13_v400_::explainCount()
{
    const QWidget *control =
        mCutEveryTxBx ? mCutEveryTxBx.data() : static_cast<const QWidget *>(mCutEveryStpr.data());
    const quint32 causes = greyCauses(OptionCatalogue::rows[OptionCatalogue::CutEvery]);
    const QString text =
        isControlEnabled(control) ? countHelp() : textOf(GreyReason::ofCount(causes));
    setTip(mCutEveryTxBx, text);
    setTip(mCutEveryStpr, text);
    setTip(mCutEveryStr, text);
}

QString OptionPDE13_v400_::countHelp() const
{
    const CountBounds bounds = CountBounds::of(mCutEvery_Choices.get());
    return localized("RS_Help_Count")
        .replace(QLatin1String("%1"), QString::number(bounds.smallest))
        .replace(QLatin1String("%2"), QString::number(bounds.largest));
}

quint32 OptionPDE13_v400_::greyCauses(const OptionRow &row) const
{
    quint32 causes = 0;
    const auto add = [&causes](GreyReason::Cause cause, bool isGiven) {
        causes |= isGiven ? cause : 0U;
    };
    add(GreyReason::OptionMissing, !(this->*row.option));
    add(GreyReason::FlagTape, paperClass() == PaperClass::Flag);
    add(GreyReason::SpecialTapeOn, isOn(mSpecialTapeChkBx));
    add(GreyReason::CutEveryOff, !isOn(mCutEveryChkBx));
    return causes;
}

QString OptionPDE13_v400_::textOf(const GreyReason &reason) const
{
    const CheckBox *other =
        reason.other ? (this->*OptionCatalogue::rows[*reason.other].checkBox).data() : nullptr;
    return localized(reason.key).replace(QLatin1String("%1"), other ? other->title() : QString());
}

QString OptionPDE13_v400_::stripText() const
{
    Strip shown = strip();
    shown.hasNoBlankSpace = shown.hasNoBlankSpace && isControlEnabled(mRemoveBlkSpaceChkBx);
    return stripWords(shown, isRVPrinter(), mCutEveryTxBx ? mCutEveryTxBx->text() : QString(),
                      *nsPDEBundle);
}
