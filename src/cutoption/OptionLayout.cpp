// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionLayout.h"

#include "cutoption/OptionCatalogue.h"
#include "preview/OptionViewAccessible.h"
#include "printcore/Bundle.h"
#include "printcore/CheckedFile.h"
#include "toolkit/AccessibleRegistration.h"
#include "toolkit/PictureIcon.h"
#include "toolkit/ViewGeometry.h"

#include <QFileInfo>
#include <QIcon>

#include <algorithm>
#include <span>

namespace {
// Lengths of the layout, in points.
constexpr double firstRowBelowTop = 38.0;
constexpr int rowHeight = 26;
constexpr int cutEveryHeight = 2 * rowHeight;
constexpr int fieldOffset = -4;
constexpr int stepperOffset = -5;
constexpr int captionOffset = 2;
/// The tallest field that does not reach into the row above.
constexpr double tallestField = 30.0;
/// A field that is less than this too low is left as it is: a point cannot be seen.
constexpr double leastHeightening = 1.0;
/// How far the middle of the caption's text is above the field's lower edge, without half of it.
constexpr double captionAboveField = captionOffset - fieldOffset;

using Presets = std::span<const char *const>;

// Presets that make no sense for the printer's family.
constexpr const char *removedForLabelSeries[] = {"AHCMOffOffOffOff"};
constexpr const char *removedForTapeFamily[] = {"EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff",
                                                "EveryEndMirrorOnOffOff"};

// Presets that make no sense with a row shown, or without it.
constexpr const char *withCutMark[] = {"AHCMOffOffOffOff", "AHCMOffOffOnOff", "AHCMOffOnOnOff",
                                       "AHCMOnOffOnOff", "AHCMOnOnOnOff"};
constexpr const char *withoutCutMark[] = {"CTMROnOffOff", "CTMROffOnOff", "CTMROnOnOff",
                                          "CTMROffOffOff"};
constexpr const char *withoutCutEvery[] = {"EveryEndMirrorOnOffOff", "EveryEndMirrorOnOnOff"};
/// The last one only where there is a cut-every option.
constexpr const char *withoutAutoCut[] = {"AHCMOnOffOffOff", "AHCMOnOffOnOff", "AHCMOnOnOffOff",
                                          "AHCMOnOnOnOff", "AHCMOnOnOnOn"};
constexpr const char *withoutCutAtEnd[] = {"EveryEndMirrorOffOnOff"};
constexpr const char *withoutHalfCut[] = {"AHCMOffOnOffOff", "AHCMOffOnOnOff", "AHCMOnOnOffOff",
                                          "AHCMOnOnOnOff"};
constexpr const char *withoutSpecialTape[] = {"SPMROnOff"};
constexpr const char *withoutChainPrint[] = {"AHCMOffOffOnOff", "AHCMOffOnOnOff", "AHCMOnOffOnOff",
                                             "AHCMOnOnOnOff",   "CTMROffOnOff",   "CTMROnOnOff"};

struct LayoutRow
{
    OptionCatalogue::Option option;
    /// How much lower the view is without the row.
    int height;
    Presets removedWhenShown;
    Presets removedWhenHidden;
};

/// The rows from top to bottom, which is not the catalogue's order.
const LayoutRow layoutRows[] = {
    {OptionCatalogue::CutMark, rowHeight, withCutMark, withoutCutMark},
    {OptionCatalogue::CutEvery, cutEveryHeight, {}, withoutCutEvery},
    {OptionCatalogue::AutoCut, rowHeight, {}, withoutAutoCut},
    {OptionCatalogue::CutAtEnd, rowHeight, {}, withoutCutAtEnd},
    {OptionCatalogue::HalfCut, rowHeight, {}, withoutHalfCut},
    {OptionCatalogue::SpecialTape, rowHeight, {}, withoutSpecialTape},
    {OptionCatalogue::ChainPrint, rowHeight, {}, withoutChainPrint},
    {OptionCatalogue::Mirror, rowHeight, {}, {}},
    {OptionCatalogue::RemoveBlkSpace, rowHeight, {}, {}},
};

void hide(QWidget *control)
{
    if (control) {
        control->hide();
    }
}

void grow(QWidget *control, const QSizeF &by)
{
    setFrameSize(control, frameSize(control) + by);
}

void shift(QWidget *control, double by)
{
    const QPointF origin = frameOrigin(control);
    setFrameOrigin(control, origin.x() + by, origin.y());
}

void showAt(QWidget *control, double y)
{
    if (control) {
        control->show();
        setFrameOrigin(control, frameOrigin(control).x(), y);
    }
}
} // namespace

OptionLayout::OptionLayout(OptionOutlets &outlets, const OptionRecords &records, bool hasAutoCutBox)
    : mOutlets(outlets)
    , mRecords(records)
    , mHasAutoCutBox(hasAutoCutBox)
{
}

void OptionLayout::widen(QWidget *view, double by)
{
    grow(view, {by, 0.0});
    for (const OptionRow &row : OptionCatalogue::rows) {
        grow(mOutlets.*row.checkBox, {by, 0.0});
    }
    grow(mOutlets.mCutEveryStr, {by, 0.0});
    shift(mOutlets.mOptionPopUpButton, by);
    shift(mOutlets.mOptionDummyView, by);
}

void OptionLayout::alignFieldLine()
{
    QLineEdit *field = mOutlets.mCutEveryTxBx;
    const QLabel *caption = mOutlets.mCutEveryStr;
    if (!field || !caption) {
        return;
    }
    // The caption's text stands at its lower edge, the field's in its middle.
    const double text = caption->fontMetrics().height() / pixelsPerPoint(caption);
    const double by =
        std::min(2 * captionAboveField + text, tallestField) - frameSize(field).height();
    if (by > leastHeightening) {
        grow(field, {0.0, by});
        grow(mOutlets.mCutEveryStpr, {0.0, by});
    }
}

void OptionLayout::hideControls()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        hide(mOutlets.*row.checkBox);
    }
    hide(mOutlets.mCutEveryTxBx);
    hide(mOutlets.mCutEveryStpr);
    hide(mOutlets.mCutEveryStr);
}

void OptionLayout::removePresetsOfOtherFamily(bool isLabelSeries)
{
    removePresets(isLabelSeries ? Presets(removedForLabelSeries) : Presets(removedForTapeFamily));
}

void OptionLayout::removePresets(Presets identifiers)
{
    for (const char *identifier : identifiers) {
        if (mOutlets.mOptionPopUpButton) {
            mOutlets.mOptionPopUpButton->removeItemWithTitle(QLatin1String(identifier));
        }
    }
}

int OptionLayout::layOutRows(double viewHeight)
{
    double y = viewHeight - firstRowBelowTop;
    int removedHeight = 0;
    for (const LayoutRow &layout : layoutRows) {
        const OptionRow &row = OptionCatalogue::rows[layout.option];
        const bool isAutoCut = layout.option == OptionCatalogue::AutoCut;
        if (!(mRecords.*row.choices).isNull() && (!isAutoCut || mHasAutoCutBox)) {
            removePresets(layout.removedWhenShown);
            showAt(mOutlets.*row.checkBox, y);
            y = layout.option == OptionCatalogue::CutEvery ? layOutCutEveryFields(y)
                                                           : y - rowHeight;
            continue;
        }
        const bool keepsLast = isAutoCut && mRecords.mCutEvery_Choices.isNull();
        removePresets(
            layout.removedWhenHidden.first(layout.removedWhenHidden.size() - (keepsLast ? 1 : 0)));
        removedHeight += layout.height;
    }
    return removedHeight;
}

double OptionLayout::layOutCutEveryFields(double boxOrigin)
{
    const int fieldLine = int(boxOrigin - rowHeight);
    showAt(mOutlets.mCutEveryTxBx, fieldLine + fieldOffset);
    showAt(mOutlets.mCutEveryStpr, fieldLine + stepperOffset);
    showAt(mOutlets.mCutEveryStr, fieldLine + captionOffset);
    return fieldLine - rowHeight;
}

void OptionLayout::dressMenu(const Bundle &bundle)
{
    PopUpButton *popUp = mOutlets.mOptionPopUpButton;
    if (!popUp) {
        return;
    }
    popUp->setIconSize(popUp->iconSize() * pixelsPerPoint(popUp));
    const CheckedFile folder = bundle.resources();
    for (int i = 0; i < popUp->count(); ++i) {
        const QString identifier = popUp->itemText(i);
        const QString path = bundle.pathForImageResource(QStringLiteral("Preset") + identifier);
        popUp->setItemIdentifier(i, identifier);
        if (!path.isNull()) {
            const PictureFile picture(folder, QFileInfo(path).fileName());
            popUp->setItemIcon(i, QIcon(new PictureIcon(picture)));
        }
        popUp->setItemName(i,
                           bundle.localizedStringForKey(QStringLiteral("RS_Preset_") + identifier));
        popUp->setItemText(i, QString());
    }
}

void OptionLayout::insertPreview(const Bundle &bundle, bool isLabelSeries)
{
    static const AccessibleRegistration<OptionView13_v400_, OptionViewAccessible> registration;
    QWidget *dummy = mOutlets.mOptionDummyView;
    const QRect frame = dummy ? dummy->geometry() : QRect(0, 0, 0, 0);
    QWidget *superview = dummy ? dummy->parentWidget() : nullptr;
    delete mOutlets.mOptionView;
    OptionView13_v400_ *view =
        OptionView13_v400_::initWithFrame(frame, bundle, isLabelSeries).release();
    mOutlets.mOptionView = view;
    view->setObjectName(QStringLiteral("mOptionView"));
    if (superview) {
        view->setParent(superview);
        view->setGeometry(frame);
        view->show();
        delete dummy;
    }
    view->setCutEveryChkBx(mOutlets.mCutEveryChkBx);
    view->setCutAndEndChkBx(mOutlets.mCutAndEndChkBx);
    view->setMirrorPrintChkBx(mOutlets.mMirrorPrintChkBx);
    view->setAutoCutChkBx(mOutlets.mAutoCutChkBx);
    view->setHalfCutChkBx(mOutlets.mHalfCutChkBx);
    view->setChainPrintChkBx(mOutlets.mChainPrintChkBx);
    view->setSpecialTapeChkBx(mOutlets.mSpecialTapeChkBx);
    view->setRemoveBlkSpaceChkBx(mOutlets.mRemoveBlkSpaceChkBx);
    view->setCutMarkChkBx(mOutlets.mCutMarkChkBx);
}
