// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "cutoption/OptionLayout.h"
#include "textinput/FieldEdits.h"
#include "textinput/PDETextField.h"
#include "toolkit/ViewGeometry.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace {
// Lengths of the view, in points.
constexpr double mostWidening = 350.0;
constexpr double leastViewHeight = 150.0;
constexpr double previewBelowTop = 130.0;

void nameOption(QWidget *control, const OptionRow &row)
{
    if (control) {
        control->setProperty(kPPDOptionKeywordProperty, QLatin1String(row.keyword));
    }
}
} // namespace

void OptionPDE13_v400_::connectOutlets(QWidget *nib)
{
    BasePDE13_v400_::connectOutlets(nib);
    findIn(nib);
    connectActions();
}

void OptionPDE13_v400_::connectActions()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        if (CheckBox *box = this->*row.checkBox) {
            connect(box, &CheckBox::chosen, this, [this, box] { takeTick(box); });
        }
    }
    if (PopUpButton *popUp = mOptionPopUpButton) {
        popUp->setValidator([this](int tag) { return validateMenuItem(tag); });
        connect(popUp, qOverload<int>(&PopUpButton::activated), this,
                [this, popUp] { changeOptionPopUpButton(popUp); });
    }
    if (Stepper *stepper = mCutEveryStpr) {
        connect(stepper, &Stepper::stepped, this,
                [this, stepper] { changeCutEveryValue(stepper); });
    }
    // A field that announces its edits itself leaves the panel out.
    QLineEdit *field = mCutEveryTxBx;
    if (field && !qobject_cast<PDETextField13_v400_ *>(field)) {
        connect(FieldEdits::of(field), &FieldEdits::edited, this,
                [this, field](const QString &before) { takeCount(field, before); });
    }
}

double OptionPDE13_v400_::widthMissingForTitles() const
{
    double missing = 0.0;
    const auto require = [&missing](const QWidget *control, int pixels) {
        missing = std::max(missing, std::ceil(pixels / pixelsPerPoint(control)) -
                                        frameSize(control).width());
    };
    for (const OptionRow &row : OptionCatalogue::rows) {
        const CheckBox *box = this->*row.checkBox;
        if (box && !(this->*row.choices).isNull()) {
            require(box, box->widthForTitle(localizedOptionTitle(row, row.labelKey)));
        }
    }
    if (mCutEveryStr && !mCutEvery_Choices.isNull()) {
        require(mCutEveryStr,
                mCutEveryStr->fontMetrics().horizontalAdvance(localized("RS_Labels")));
    }
    return missing;
}

void OptionPDE13_v400_::awakeFromNib()
{
    OptionLayout layout(*this, *this, mAutoCutHideKey_dec != 0);
    if (const double missing = widthMissingForTitles(); missing > 0.0) {
        layout.widen(kPDEView, std::min(missing, mostWidening));
    }
    layout.alignFieldLine();

    const QSizeF size = frameSize(kPDEView);
    layout.hideControls();
    layout.removePresetsOfOtherFamily(isRVPrinter());
    const int removedHeight = layout.layOutRows(size.height());
    layout.dressMenu(*nsPDEBundle);
    const double viewHeight = std::max(leastViewHeight, size.height() - removedHeight);
    layout.insertPreview(*nsPDEBundle, isRVPrinter());
    setViewFrameSize({size.width(), viewHeight});
    setFrameOrigin(mOptionView, frameOrigin(mOptionView).x(), viewHeight - previewBelowTop);

    nameOptions();
    mWords.nameControls(isRVPrinter());
}

void OptionPDE13_v400_::nameOptions()
{
    const auto &rows = OptionCatalogue::rows;
    for (const OptionRow &row : std::span(rows).subspan(OptionCatalogue::CutAtEnd)) {
        nameOption(this->*row.checkBox, row);
    }
    nameOption(mCutEveryTxBx, rows[OptionCatalogue::CutEvery]);
    // The cut-every box drives auto cut; with a box of its own that is the one to work.
    nameOption(mAutoCutHideKey_dec ? nullptr : mCutEveryChkBx.data(),
               rows[OptionCatalogue::AutoCut]);
}
