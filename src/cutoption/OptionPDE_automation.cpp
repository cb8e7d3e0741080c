#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "ppd/PDEUtilsMethod.h"
#include "preview/OptionView.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"
#include "toolkit/ViewGeometry.h"

#include <QJsonArray>

#include <algorithm>

namespace {
QJsonObject sizeOf(const QWidget *view)
{
    const QSizeF size = frameSize(view);
    return {{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}};
}

/// A null string as JSON's null.
QJsonValue valueOf(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}
} // namespace

QJsonObject OptionPDE13_v400_::state() const
{
    return {
        {QStringLiteral("view"), kPDEView ? QJsonValue(sizeOf(kPDEView)) : QJsonValue()},
        {QStringLiteral("controls"), stateOfControls()},
        {QStringLiteral("popup"), stateOfPopUp()},
        {QStringLiteral("selections"), stateOfSelections()},
        {QStringLiteral("marks"), stateOfMarks()},
        {QStringLiteral("flags"), stateOfFlags()},
        {QStringLiteral("preview"),
         mOptionView ? valueOf(mOptionView->targetDrawImageName()) : QJsonValue()},
    };
}

QJsonObject OptionPDE13_v400_::stateOfControls() const
{
    QJsonObject controls;
    const auto add = [&controls](const QWidget *control, const char *outlet, QJsonObject details) {
        if (!control) {
            return;
        }
        const QPointF origin = frameOrigin(control);
        details.insert(QStringLiteral("hidden"), control->isHidden());
        details.insert(QStringLiteral("enabled"), isControlEnabled(control));
        details.insert(QStringLiteral("x"), origin.x());
        details.insert(QStringLiteral("y"), origin.y());
        details.insert(QStringLiteral("width"), frameSize(control).width());
        details.insert(QStringLiteral("height"), frameSize(control).height());
        controls.insert(QLatin1String(outlet), details);
    };
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (const CheckBox *box = this->*row.checkBox) {
            add(box, row.outlet,
                {{QStringLiteral("state"), int(box->isChecked())},
                 {QStringLiteral("title"), box->title()}});
        }
    }
    add(mOptionPopUpButton, "mOptionPopUpButton", {});
    if (mCutEveryTxBx) {
        add(mCutEveryTxBx, "mCutEveryTxBx", {{QStringLiteral("text"), mCutEveryTxBx->text()}});
    }
    if (mCutEveryStpr) {
        add(mCutEveryStpr, "mCutEveryStpr", {{QStringLiteral("value"), mCutEveryStpr->intValue()}});
    }
    if (mCutEveryStr) {
        add(mCutEveryStr, "mCutEveryStr",
            {{QStringLiteral("title"), mCutEveryStr->text()},
             {QStringLiteral("dimmed"), PDEUtilsMethod13::isTextDimmed(mCutEveryStr)}});
    }
    return controls;
}

QList<PDEPreset> OptionPDE13_v400_::presets() const
{
    const PopUpButton *popUp = mOptionPopUpButton;
    QList<PDEPreset> presets;
    for (int i = 0; popUp && i < popUp->count(); ++i) {
        const int tag = popUp->tagAt(i);
        presets.append({popUp->itemIdentifier(i), tag,
                        popUp->itemData(i, Qt::AccessibleTextRole).toString(),
                        validateMenuItem(tag), i == popUp->currentIndex()});
    }
    return presets;
}

bool OptionPDE13_v400_::choosePreset(const QString &identifier)
{
    const QList<PDEPreset> all = presets();
    const auto isIt = [&identifier](const PDEPreset &preset) {
        return preset.identifier == identifier;
    };
    const auto preset = std::ranges::find_if(all, isIt);
    if (preset == all.end() || !preset->isEnabled) {
        return false;
    }
    const int index = int(preset - all.begin());
    mOptionPopUpButton->setCurrentIndex(index);
    Q_EMIT mOptionPopUpButton->activated(index);
    return true;
}

QJsonObject OptionPDE13_v400_::stateOfPopUp() const
{
    QJsonArray tags;
    QJsonArray disabled;
    QJsonValue selected;
    for (const PDEPreset &preset : presets()) {
        tags.append(preset.tag);
        if (!preset.isEnabled) {
            disabled.append(preset.tag);
        }
        if (preset.isSelected) {
            selected = preset.tag;
        }
    }
    return {{QStringLiteral("tags"), tags},
            {QStringLiteral("selected"), selected},
            {QStringLiteral("disabled"), disabled}};
}

QJsonObject OptionPDE13_v400_::stateOfSelections() const
{
    const std::pair<const char *, const PDEChoice *> fields[] = {
        {"mCutEvery_Selection", mCutEvery_Selection},
        {"mCutEnd_Selection", mCutEnd_Selection},
        {"mMirror_Selection", mMirror_Selection},
        {"mAutoCut_Selection", mAutoCut_Selection},
        {"mHalfCut_Selection", mHalfCut_Selection},
        {"mChainPrint_Selection", mChainPrint_Selection},
        {"mSpecialTape_Selection", mSpecialTape_Selection},
        {"mRemoveBlkSpace_Selection", mRemoveBlkSpace_Selection},
        {"mAutoCut_CutEvery_Selection", mAutoCut_CutEvery_Selection},
        {"mCutMark_Selection", mCutMark_Selection},
    };
    QJsonObject selections;
    for (const auto &[name, choice] : fields) {
        selections.insert(QLatin1String(name), choice ? valueOf(choice->ppdTitle()) : QJsonValue());
    }
    return selections;
}

QJsonObject OptionPDE13_v400_::stateOfMarks() const
{
    QJsonObject marks;
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (this->*row.option) {
            const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, row.keyword);
            marks.insert(QLatin1String(row.keyword),
                         marked ? QJsonValue(QString::fromUtf8(marked->choice)) : QJsonValue());
        }
    }
    return marks;
}

QJsonObject OptionPDE13_v400_::stateOfFlags() const
{
    return {{QStringLiteral("mTapeState"), mTapeState},
            {QStringLiteral("mAutoCutHideKey_dec"), int(mAutoCutHideKey_dec)},
            {QStringLiteral("set_formatSetting"), int(set_formatSetting)},
            {QStringLiteral("usb_dec"), int(usb_dec)}};
}
