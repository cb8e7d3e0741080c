// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionWords.h"

#include "cutoption/CountBounds.h"
#include "cutoption/GreyReason.h"
#include "cutoption/OptionCatalogue.h"
#include "cutoption/StripWords.h"
#include "printcore/Bundle.h"
#include "toolkit/ControlState.h"
#include "toolkit/Tip.h"

#include <QEvent>

#include <utility>

OptionWords::OptionWords(const OptionOutlets &outlets, const OptionRecords &records,
                         std::shared_ptr<Bundle> bundle)
    : mOutlets(outlets)
    , mRecords(records)
    , mBundle(std::move(bundle))
{
    QAccessible::installActivationObserver(this);
}

OptionWords::~OptionWords()
{
    QAccessible::removeActivationObserver(this);
}

void OptionWords::nameControls(bool isLabelSeries)
{
    mIsLabelSeries = isLabelSeries;
    const CountBounds bounds = CountBounds::of(mRecords.mCutEvery_Choices);
    if (PopUpButton *popUp = mOutlets.mOptionPopUpButton) {
        popUp->setAccessibleName(localized("RS_Presets"));
        popUp->setAccessibleDescription(localized("RS_Help_Presets"));
        popUp->setGreyReason(localized("RS_Why_Tape"));
    }
    if (QLineEdit *field = mOutlets.mCutEveryTxBx) {
        field->setAccessibleName(localized("RS_CutEveryCount"));
    }
    if (Stepper *stepper = mOutlets.mCutEveryStpr) {
        stepper->setAccessibleName(localized("RS_CutEveryCount"));
        stepper->setStepNames(localized("RS_Increase"), localized("RS_Decrease"));
        stepper->setBounds(bounds.smallest, bounds.largest);
        stepper->setField(mOutlets.mCutEveryTxBx);
    }
    mOutlets.mOptionView->setAccessibleName(localized("RS_Preview"));

    QList<QWidget *> explained = {mOutlets.mCutEveryTxBx, mOutlets.mCutEveryStpr,
                                  mOutlets.mCutEveryStr, mOutlets.mOptionView};
    for (const OptionRow &row : OptionCatalogue::rows) {
        explained.append(mOutlets.*row.checkBox);
    }
    for (QWidget *control : std::as_const(explained)) {
        if (control) {
            control->installEventFilter(this);
        }
    }
}

void OptionWords::noteChange(bool hasFlagPaper)
{
    mHasFlagPaper = hasFlagPaper;
    mIsStale = true;
    updateLater();
}

bool OptionWords::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        update();
    }
    return false;
}

void OptionWords::accessibilityActiveChanged(bool)
{
    updateLater();
}

void OptionWords::updateLater()
{
    if (QAccessible::isActive() && !std::exchange(mIsUpdatePending, true)) {
        QMetaObject::invokeMethod(this, &OptionWords::update, Qt::QueuedConnection);
    }
}

void OptionWords::update()
{
    mIsUpdatePending = false;
    if (std::exchange(mIsStale, false)) {
        explainOptions();
        explainCount();
        setTip(mOutlets.mOptionView, stripText());
    }
}

void OptionWords::explainOptions()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        CheckBox *box = mOutlets.*row.checkBox;
        setTip(box, isControlEnabled(box) ? localized(row.helpKey)
                                          : textOf(GreyReason::ofOption(row.id, greyCauses(row))));
    }
}

void OptionWords::explainCount()
{
    const QWidget *control = mOutlets.mCutEveryTxBx;
    if (!control) {
        control = mOutlets.mCutEveryStpr;
    }
    const quint32 causes = greyCauses(OptionCatalogue::rows[OptionCatalogue::CutEvery]);
    const QString text =
        isControlEnabled(control) ? countHelp() : textOf(GreyReason::ofCount(causes));
    setTip(mOutlets.mCutEveryTxBx, text);
    setTip(mOutlets.mCutEveryStpr, text);
    setTip(mOutlets.mCutEveryStr, text);
}

quint32 OptionWords::greyCauses(const OptionRow &row) const
{
    quint32 causes = 0;
    const auto add = [&causes](GreyReason::Cause cause, bool isGiven) {
        causes |= isGiven ? cause : 0U;
    };
    add(GreyReason::OptionMissing, !(mRecords.*row.option));
    add(GreyReason::FlagTape, mHasFlagPaper);
    add(GreyReason::SpecialTapeOn, isOn(mOutlets.mSpecialTapeChkBx));
    add(GreyReason::CutEveryOff, !isOn(mOutlets.mCutEveryChkBx));
    return causes;
}

QString OptionWords::textOf(const GreyReason &reason) const
{
    const CheckBox *other =
        reason.other ? (mOutlets.*OptionCatalogue::rows[*reason.other].checkBox).data() : nullptr;
    return localized(reason.key).replace(QLatin1String("%1"), other ? other->title() : QString());
}

QString OptionWords::countHelp() const
{
    const CountBounds bounds = CountBounds::of(mRecords.mCutEvery_Choices);
    return localized("RS_Help_Count")
        .replace(QLatin1String("%1"), QString::number(bounds.smallest))
        .replace(QLatin1String("%2"), QString::number(bounds.largest));
}

QString OptionWords::stripText() const
{
    Strip shown = mOutlets.strip();
    shown.hasNoBlankSpace =
        shown.hasNoBlankSpace && isControlEnabled(mOutlets.mRemoveBlkSpaceChkBx);
    const QLineEdit *field = mOutlets.mCutEveryTxBx;
    return stripWords(shown, mIsLabelSeries, field ? field->text() : QString(), *mBundle);
}

QString OptionWords::localized(const char *key) const
{
    return mBundle->localizedStringForKey(QLatin1String(key));
}

#include "moc_OptionWords.cpp"
