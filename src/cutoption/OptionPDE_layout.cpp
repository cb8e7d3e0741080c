#include "cutoption/OptionPDE.h"

#include "cutoption/OptionCatalogue.h"
#include "preview/OptionView.h"
#include "preview/OptionViewAccessible.h"
#include "textinput/FieldEdits.h"
#include "textinput/PDETextField.h"
#include "toolkit/AccessibleRegistration.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PictureIcon.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"
#include "toolkit/ViewGeometry.h"

#include <QDebug>
#include <QIcon>
#include <QSet>

#include <algorithm>
#include <cmath>

namespace {
// Lengths of the layout, in points.
constexpr double firstRowBelowTop = 38.0;
constexpr int rowHeight = 26;
constexpr int cutEveryHeight = 2 * rowHeight;
constexpr int fieldOffset = -4;
constexpr int stepperOffset = -5;
constexpr int captionOffset = 2;
constexpr double leastViewHeight = 150.0;
constexpr double previewBelowTop = 130.0;
/// The tallest field that does not reach into the row above.
constexpr double tallestField = 30.0;
/// What cannot be seen is not worth it.
constexpr double leastHeightening = 1.0;
/// How much wider than in the nib the texts may make the view.
constexpr double mostWidening = 350.0;
/// How far the middle of the caption's text is above the field's lower edge, without half of it.
constexpr double captionAboveField = captionOffset - fieldOffset;

using Presets = std::span<const char *const>;

// Presets that make no sense for the printer's family.
constexpr const char *rvFamilyRemoves[] = {"AHCMOffOffOffOff"};
constexpr const char *tapeFamilyRemoves[] = {"EveryEndMirrorOffOffOff", "EveryEndMirrorOffOnOff",
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

/// Tells of a control that is of another class than its outlet, once, and hides it: nothing would
/// happen when it is used.
void dropStranger(QWidget *control, const QMetaObject &wanted)
{
    static QSet<QString> told;
    control->hide();
    const QString problem =
        QStringLiteral("OptionPDE.ui: %1 is a %2 where a %3 is needed; it is not shown")
            .arg(control->objectName(), QLatin1String(control->metaObject()->className()),
                 QLatin1String(wanted.className()));
    if (!told.contains(problem)) {
        told.insert(problem);
        qWarning().noquote() << problem;
    }
}

template <typename Control>
void connectOutlet(QWidget *nib, const char *name, QPointer<Control> &outlet)
{
    outlet = nib->findChild<Control *>(QLatin1String(name));
    auto *stranger = outlet ? nullptr : nib->findChild<QWidget *>(QLatin1String(name));
    if (stranger) {
        dropStranger(stranger, Control::staticMetaObject);
    }
}

void nameOption(QWidget *control, const OptionRow &row)
{
    if (control) {
        control->setProperty(kPPDOptionKeywordProperty, QLatin1String(row.keyword));
    }
}

void hide(QWidget *control)
{
    if (control) {
        control->hide();
    }
}

void widen(QWidget *control, double by)
{
    const QSizeF size = frameSize(control);
    setFrameSize(control, {size.width() + by, size.height()});
}

void heighten(QWidget *control, double by)
{
    const QSizeF size = frameSize(control);
    setFrameSize(control, {size.width(), size.height() + by});
}

void shift(QWidget *control, double by)
{
    const QPointF origin = frameOrigin(control);
    setFrameOrigin(control, origin.x() + by, origin.y());
}

/// How many points a control lacks of so many pixels.
double widthMissing(const QWidget *control, int pixels)
{
    return std::ceil(pixels / pixelsPerPoint(control)) - frameSize(control).width();
}

void showAt(QWidget *control, double y)
{
    if (control) {
        control->show();
        setFrameOrigin(control, frameOrigin(control).x(), y);
    }
}
} // namespace

void OptionPDE13_v400_::connectOutlets(QWidget *nib)
{
    BasePDE13_v400_::connectOutlets(nib);
    connectOutlet(nib, "mOptionDummyView", mOptionDummyView);
    connectOutlet(nib, "mOptionPopUpButton", mOptionPopUpButton);
    for (const OptionRow &row : OptionCatalogue::rows) {
        connectOutlet(nib, row.outlet, this->*row.checkBox);
    }
    connectOutlet(nib, "mCutEveryTxBx", mCutEveryTxBx);
    connectOutlet(nib, "mCutEveryStpr", mCutEveryStpr);
    connectOutlet(nib, "mCutEveryStr", mCutEveryStr);
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

void OptionPDE13_v400_::awakeFromNib()
{
    widenToTexts();
    alignFieldLine();
    const QSizeF size = frameSize(kPDEView);
    hideControls();
    removePresets(isRVPrinter() ? Presets(rvFamilyRemoves) : Presets(tapeFamilyRemoves));
    const int removedHeight = layOutRows(size.height() - firstRowBelowTop);
    dressMenu();
    nameOptions();

    const double viewHeight = std::max(leastViewHeight, size.height() - removedHeight);
    insertPreview();
    setViewFrameSize({size.width(), viewHeight});
    setFrameOrigin(mOptionView, frameOrigin(mOptionView).x(), viewHeight - previewBelowTop);
    describeControls();
}

void OptionPDE13_v400_::widenToTexts()
{
    const double by = std::clamp(missingWidth(), 0.0, mostWidening);
    if (by == 0.0) {
        return;
    }
    widen(kPDEView, by);
    for (const OptionRow &row : OptionCatalogue::rows) {
        widen(this->*row.checkBox, by);
    }
    widen(mCutEveryStr, by);
    shift(mOptionPopUpButton, by);
    shift(mOptionDummyView, by);
}

double OptionPDE13_v400_::missingWidth() const
{
    double missing = 0.0;
    for (const OptionRow &row : OptionCatalogue::rows) {
        const CheckBox *box = this->*row.checkBox;
        if (box && this->*row.choices) {
            const QString title = localizedOptionTitle(row, row.labelKey);
            missing = std::max(missing, widthMissing(box, box->widthForTitle(title)));
        }
    }
    if (mCutEveryStr && mCutEvery_Choices) {
        const int text = mCutEveryStr->fontMetrics().horizontalAdvance(localized("RS_Labels"));
        missing = std::max(missing, widthMissing(mCutEveryStr, text));
    }
    return missing;
}

void OptionPDE13_v400_::alignFieldLine()
{
    if (!mCutEveryTxBx || !mCutEveryStr) {
        return;
    }
    // The caption's text stands at its lower edge, the field's in its middle.
    const double text = mCutEveryStr->fontMetrics().height() / pixelsPerPoint(mCutEveryStr);
    const double height = frameSize(mCutEveryTxBx).height();
    const double by = std::min(2 * captionAboveField + text, tallestField) - height;
    if (by > leastHeightening) {
        heighten(mCutEveryTxBx, by);
        heighten(mCutEveryStpr, by);
    }
}

void OptionPDE13_v400_::hideControls()
{
    for (const OptionRow &row : OptionCatalogue::rows) {
        hide(this->*row.checkBox);
    }
    hide(mCutEveryTxBx);
    hide(mCutEveryStpr);
    hide(mCutEveryStr);
}

void OptionPDE13_v400_::removePresets(std::span<const char *const> identifiers)
{
    for (const char *identifier : identifiers) {
        if (mOptionPopUpButton) {
            mOptionPopUpButton->removeItemWithTitle(QLatin1String(identifier));
        }
    }
}

int OptionPDE13_v400_::layOutRows(double top)
{
    double y = top;
    int removedHeight = 0;
    for (const LayoutRow &layout : layoutRows) {
        const OptionRow &row = OptionCatalogue::rows[layout.option];
        const bool isAutoCut = layout.option == OptionCatalogue::AutoCut;
        if (this->*row.choices && (!isAutoCut || mAutoCutHideKey_dec)) {
            removePresets(layout.removedWhenShown);
            showAt(this->*row.checkBox, y);
            y = layout.option == OptionCatalogue::CutEvery ? layOutCutEveryFields(y)
                                                           : y - rowHeight;
            continue;
        }
        const bool keepsLast = isAutoCut && !mCutEvery_Choices;
        removePresets(
            layout.removedWhenHidden.first(layout.removedWhenHidden.size() - (keepsLast ? 1 : 0)));
        removedHeight += layout.height;
    }
    return removedHeight;
}

double OptionPDE13_v400_::layOutCutEveryFields(double boxOrigin)
{
    const int fieldLine = int(boxOrigin - rowHeight);
    showAt(mCutEveryTxBx, fieldLine + fieldOffset);
    showAt(mCutEveryStpr, fieldLine + stepperOffset);
    showAt(mCutEveryStr, fieldLine + captionOffset);
    return fieldLine - rowHeight;
}

void OptionPDE13_v400_::dressMenu()
{
    PopUpButton *popUp = mOptionPopUpButton;
    if (!popUp) {
        return;
    }
    popUp->setIconSize(popUp->iconSize() * pixelsPerPoint(popUp));
    for (int i = 0; i < popUp->count(); ++i) {
        const QString identifier = popUp->itemText(i);
        const QString picture =
            nsPDEBundle->pathForImageResource(QStringLiteral("Preset") + identifier);
        popUp->setItemIdentifier(i, identifier);
        popUp->setItemIcon(i, picture.isNull() ? QIcon() : QIcon(new PictureIcon(picture)));
        popUp->setItemName(
            i, nsPDEBundle->localizedStringForKey(QStringLiteral("RS_Preset_") + identifier));
        popUp->setItemText(i, QString());
    }
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

void OptionPDE13_v400_::insertPreview()
{
    static const AccessibleRegistration<OptionView13_v400_, OptionViewAccessible> registration;
    const QRect frame = mOptionDummyView ? mOptionDummyView->geometry() : QRect(0, 0, 0, 0);
    QWidget *superview = mOptionDummyView ? mOptionDummyView->parentWidget() : nullptr;
    delete mOptionView;
    mOptionView = OptionView13_v400_::initWithFrame(frame, *nsPDEBundle, isRVPrinter()).release();
    if (superview) {
        mOptionView->setParent(superview);
        mOptionView->setGeometry(frame);
        mOptionView->show();
        delete mOptionDummyView;
    }
    mOptionView->setCutEveryChkBx(mCutEveryChkBx);
    mOptionView->setCutAndEndChkBx(mCutAndEndChkBx);
    mOptionView->setMirrorPrintChkBx(mMirrorPrintChkBx);
    mOptionView->setAutoCutChkBx(mAutoCutChkBx);
    mOptionView->setHalfCutChkBx(mHalfCutChkBx);
    mOptionView->setChainPrintChkBx(mChainPrintChkBx);
    mOptionView->setSpecialTapeChkBx(mSpecialTapeChkBx);
    mOptionView->setRemoveBlkSpaceChkBx(mRemoveBlkSpaceChkBx);
    mOptionView->setCutMarkChkBx(mCutMarkChkBx);
}
