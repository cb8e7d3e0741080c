// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionState.h"

#include "cutoption/OptionCatalogue.h"
#include "ppd/PDEUtilsMethod.h"
#include "toolkit/ControlState.h"
#include "toolkit/ViewGeometry.h"

#include <QJsonArray>

namespace {
/// A null string as JSON's null.
QJsonValue valueOf(const QString &text)
{
    return text.isNull() ? QJsonValue() : QJsonValue(text);
}

QJsonObject placeOf(const QWidget *control)
{
    const QPointF origin = frameOrigin(control);
    const QSizeF size = frameSize(control);
    return {{QStringLiteral("hidden"), control->isHidden()},
            {QStringLiteral("enabled"), isControlEnabled(control)},
            {QStringLiteral("x"), origin.x()},
            {QStringLiteral("y"), origin.y()},
            {QStringLiteral("width"), size.width()},
            {QStringLiteral("height"), size.height()}};
}
} // namespace

QJsonValue OptionState::ofView(const QWidget *view)
{
    const QSizeF size = frameSize(view);
    return view ? QJsonObject({{QStringLiteral("width"), size.width()},
                               {QStringLiteral("height"), size.height()}})
                : QJsonValue();
}

QJsonObject OptionState::ofControls(const OptionOutlets &outlets)
{
    QJsonObject controls;
    const auto add = [&controls](const QWidget *control, const char *outlet,
                                 const QJsonObject &details) {
        QJsonObject state = placeOf(control);
        for (auto detail = details.begin(); detail != details.end(); ++detail) {
            state.insert(detail.key(), detail.value());
        }
        controls.insert(QLatin1String(outlet), state);
    };
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (const CheckBox *box = outlets.*row.checkBox) {
            add(box, row.outlet,
                {{QStringLiteral("state"), int(box->isChecked())},
                 {QStringLiteral("title"), box->title()}});
        }
    }
    if (const PopUpButton *popUp = outlets.mOptionPopUpButton) {
        add(popUp, "mOptionPopUpButton", {});
    }
    if (const QLineEdit *field = outlets.mCutEveryTxBx) {
        add(field, "mCutEveryTxBx", {{QStringLiteral("text"), field->text()}});
    }
    if (const Stepper *stepper = outlets.mCutEveryStpr) {
        add(stepper, "mCutEveryStpr", {{QStringLiteral("value"), stepper->intValue()}});
    }
    if (const QLabel *caption = outlets.mCutEveryStr) {
        add(caption, "mCutEveryStr",
            {{QStringLiteral("title"), caption->text()},
             {QStringLiteral("dimmed"), PDEUtilsMethod13::isTextDimmed(caption)}});
    }
    return controls;
}

QJsonObject OptionState::ofMenu(const QList<PDEPreset> &presets)
{
    QJsonArray tags;
    QJsonArray disabled;
    QJsonValue selected;
    for (const PDEPreset &preset : presets) {
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

QJsonObject OptionState::ofSelections(const OptionRecords &records)
{
    const std::pair<const char *, const PDEChoice *> fields[] = {
        {"mCutEvery_Selection", records.mCutEvery_Selection},
        {"mCutEnd_Selection", records.mCutEnd_Selection},
        {"mMirror_Selection", records.mMirror_Selection},
        {"mAutoCut_Selection", records.mAutoCut_Selection},
        {"mHalfCut_Selection", records.mHalfCut_Selection},
        {"mChainPrint_Selection", records.mChainPrint_Selection},
        {"mSpecialTape_Selection", records.mSpecialTape_Selection},
        {"mRemoveBlkSpace_Selection", records.mRemoveBlkSpace_Selection},
        {"mAutoCut_CutEvery_Selection", records.mAutoCut_CutEvery_Selection},
        {"mCutMark_Selection", records.mCutMark_Selection},
    };
    QJsonObject selections;
    for (const auto &[name, choice] : fields) {
        selections.insert(QLatin1String(name), choice ? valueOf(choice->ppdTitle()) : QJsonValue());
    }
    return selections;
}

QJsonObject OptionState::ofMarks(const OptionRecords &records, ppd_file_t *ppd)
{
    QJsonObject marks;
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (records.*row.option) {
            const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, row.keyword);
            marks.insert(QLatin1String(row.keyword),
                         marked ? QJsonValue(QString::fromUtf8(marked->choice)) : QJsonValue());
        }
    }
    return marks;
}

QJsonValue OptionState::ofPreview(const OptionOutlets &outlets)
{
    const OptionView13_v400_ *view = outlets.mOptionView;
    return view ? valueOf(view->targetDrawImageName()) : QJsonValue();
}
