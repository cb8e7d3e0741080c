#include "cutoption/OptionPDE.h"

#include "cutoption/CountBounds.h"
#include "cutoption/GreyReason.h"
#include "cutoption/OptionCatalogue.h"
#include "cutoption/StripWords.h"
#include "ppd/TapeInfo.h"
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
    for (std::size_t i = 0; i < OptionCatalogue::Count; ++i) {
        const OptionRow &row = OptionCatalogue::rows[i];
        CheckBox *box = this->*row.checkBox;
        setTip(box, isControlEnabled(box) ? localized(row.helpKey) : greyReason(i));
    }
    explainCount();
    setTip(mOptionView, stripWords().text(*nsPDEBundle));
}

void OptionPDE13_v400_::explainCount()
{
    const QWidget *control =
        mCutEveryTxBx ? mCutEveryTxBx.data() : static_cast<const QWidget *>(mCutEveryStpr.data());
    const QString text =
        isControlEnabled(control) ? countHelp() : greyReason(OptionCatalogue::Count);
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

QString OptionPDE13_v400_::greyReason(std::size_t control) const
{
    const auto &rows = OptionCatalogue::rows;
    const std::size_t cutEvery = OptionCatalogue::CutEvery;
    const OptionRow &row = rows[control == OptionCatalogue::Count ? cutEvery : control];
    quint32 causes = 0;
    const auto add = [&causes](GreyReason::Cause cause, bool isGiven) {
        causes |= isGiven ? cause : 0U;
    };
    add(GreyReason::OptionMissing, !(this->*row.option));
    add(GreyReason::FlagTape,
        paperNameOfPageFormat(pdePluginCallbackObject->pageFormat()).startsWith("FL"));
    add(GreyReason::SpecialTapeOn, isOn(mSpecialTapeChkBx));
    add(GreyReason::CutEveryOff, !isOn(mCutEveryChkBx));

    const GreyReason reason = GreyReason::of(OptionCatalogue::Option(control), causes);
    const CheckBox *other =
        reason.other == OptionCatalogue::Count ? nullptr : this->*rows[reason.other].checkBox;
    return localized(reason.key).replace(QLatin1String("%1"), other ? other->title() : QString());
}

StripWords OptionPDE13_v400_::stripWords() const
{
    StripWords strip;
    strip.isSpecialTape = isOn(mSpecialTapeChkBx);
    strip.isMirrored = isOn(mMirrorPrintChkBx);
    strip.hasNoBlankSpace = isOn(mRemoveBlkSpaceChkBx) && isControlEnabled(mRemoveBlkSpaceChkBx);
    strip.isCutAtEnd = isOn(mCutAndEndChkBx);
    if (strip.isSpecialTape) {
        return strip;
    }
    strip.isCut = isOn(mCutEveryChkBx) || isOn(mAutoCutChkBx);
    strip.isHalfCut = isOn(mHalfCutChkBx);
    strip.isChained = isOn(mChainPrintChkBx);
    strip.hasCutMarks = isOn(mCutMarkChkBx);
    // A tape printer cuts after the last label, too, unless that waits for the next job.
    strip.isCutAtEnd = strip.isCutAtEnd || (!isRVPrinter() && strip.isCut && !strip.isChained);
    if (isOn(mCutEveryChkBx) && mCutEveryTxBx) {
        strip.count = mCutEveryTxBx->text();
    }
    return strip;
}
