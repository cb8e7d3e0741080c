// SPDX-License-Identifier: Apache-2.0
#include "View.h"

#include <QJsonArray>

#include <algorithm>

namespace model {
namespace {
constexpr int nibWidth = 480;
constexpr int nibHeight = 292;
constexpr int leastHeight = 150;
constexpr int rowHeight = 26;

struct NibItem
{
    QLatin1String outlet;
    int x;
    /// From the nib's top.
    int top;
    int width;
    int height;
    QLatin1String title;
};

NibItem checkBox(const char *outlet, int top, const char *title)
{
    return {QLatin1String(outlet), 20, top, 190, 22, QLatin1String(title)};
}

const std::array<NibItem, View::OutletCount> nib = {
    checkBox("mCutEveryChkBx", 42, "Cut every"),
    checkBox("mCutAndEndChkBx", 120, "Cut at end"),
    checkBox("mMirrorPrintChkBx", 224, "Mirror printing"),
    checkBox("mAutoCutChkBx", 94, "Auto cut"),
    checkBox("mHalfCutChkBx", 146, "Half cut"),
    checkBox("mChainPrintChkBx", 198, "Chain printing"),
    checkBox("mSpecialTapeChkBx", 172, "Special tape (no cutting)"),
    checkBox("mRemoveBlkSpaceChkBx", 250, "Remove blank space"),
    checkBox("mCutMarkChkBx", 16, "Cut marks"),
    NibItem{QLatin1String("mCutEveryTxBx"), 44, 68, 56, 26, QLatin1String("")},
    NibItem{QLatin1String("mCutEveryStpr"), 102, 67, 20, 28, QLatin1String("")},
    NibItem{QLatin1String("mCutEveryStr"), 128, 66, 80, 22, QLatin1String("labels")},
    NibItem{QLatin1String("mOptionPopUpButton"), 220, 12, 240, 26, QLatin1String("")},
};

/// A row of the view, and the presets that go when it is there or when it is not.
struct Row
{
    Option option;
    int height;
    QList<QLatin1String> goWhenShown;
    QList<QLatin1String> goWhenHidden;
};

const Row rows[] = {
    {CutMark,
     rowHeight,
     {QLatin1String("AHCMOffOffOffOff"), QLatin1String("AHCMOffOffOnOff"),
      QLatin1String("AHCMOffOnOnOff"), QLatin1String("AHCMOnOffOnOff"),
      QLatin1String("AHCMOnOnOnOff")},
     {QLatin1String("CTMROnOffOff"), QLatin1String("CTMROffOnOff"), QLatin1String("CTMROnOnOff"),
      QLatin1String("CTMROffOffOff")}},
    {CutEvery,
     2 * rowHeight,
     {},
     {QLatin1String("EveryEndMirrorOnOffOff"), QLatin1String("EveryEndMirrorOnOnOff")}},
    {AutoCut,
     rowHeight,
     {},
     {QLatin1String("AHCMOnOffOffOff"), QLatin1String("AHCMOnOffOnOff"),
      QLatin1String("AHCMOnOnOffOff"), QLatin1String("AHCMOnOnOnOff")}},
    {CutAtEnd, rowHeight, {}, {QLatin1String("EveryEndMirrorOffOnOff")}},
    {HalfCut,
     rowHeight,
     {},
     {QLatin1String("AHCMOffOnOffOff"), QLatin1String("AHCMOffOnOnOff"),
      QLatin1String("AHCMOnOnOffOff"), QLatin1String("AHCMOnOnOnOff")}},
    {SpecialTape, rowHeight, {}, {QLatin1String("SPMROnOff")}},
    {ChainPrint,
     rowHeight,
     {},
     {QLatin1String("AHCMOffOffOnOff"), QLatin1String("AHCMOffOnOnOff"),
      QLatin1String("AHCMOnOffOnOff"), QLatin1String("AHCMOnOnOnOff"),
      QLatin1String("CTMROffOnOff"), QLatin1String("CTMROnOnOff")}},
    {Mirror, rowHeight, {}, {}},
    {RemoveBlkSpace, rowHeight, {}, {}},
};

/// The presets that a printer of the other family has.
QList<QLatin1String> presetsOfOtherFamily(bool isRV)
{
    if (isRV) {
        return {QLatin1String("AHCMOffOffOffOff")};
    }
    return {QLatin1String("EveryEndMirrorOffOffOff"), QLatin1String("EveryEndMirrorOffOnOff"),
            QLatin1String("EveryEndMirrorOnOffOff")};
}

bool hasRow(const Printer &printer, Option option)
{
    return option == AutoCut ? printer.hasAutoCutBox() : printer.option(option) != nullptr;
}
} // namespace

View::View(const Printer &printer)
    : captionTitle(nib[Caption].title)
    , mWidth(nibWidth)
    , mHeight(nibHeight)
    , mTags(Presets::allTags())
    , mSelectedTag(mTags.first())
{
    for (std::size_t i = 0; i < OutletCount; ++i) {
        const NibItem &item = nib[i];
        mControls[i] = {item.x, nibHeight - item.top - item.height, item.width, item.height,
                        i != Menu};
    }
    for (const Option option : everyOption) {
        titles[option] = nib[option].title;
    }
    layOut(printer);
}

void View::layOut(const Printer &printer)
{
    for (const QLatin1String identifier : presetsOfOtherFamily(printer.isRV())) {
        removeItem(identifier);
    }
    int y = mHeight - 38;
    int removedHeight = 0;
    for (const Row &row : rows) {
        const bool isShown = hasRow(printer, row.option);
        if (isShown) {
            showRow(row.option, y);
        } else {
            removedHeight += row.height;
        }
        for (const QLatin1String identifier : isShown ? row.goWhenShown : row.goWhenHidden) {
            removeItem(identifier);
        }
    }
    shrink(removedHeight);
}

void View::showRow(Option option, int &y)
{
    mControls[option].isHidden = false;
    mControls[option].y = y;
    y -= rowHeight;
    if (option == CutEvery) {
        showCount(y);
        y -= rowHeight;
    }
}

void View::showCount(int y)
{
    static const std::pair<Outlet, int> offsets[] = {{Field, -4}, {Stepper, -5}, {Caption, 2}};
    for (const auto &[outlet, offset] : offsets) {
        mControls[outlet].isHidden = false;
        mControls[outlet].y = y + offset;
    }
}

void View::removeItem(QLatin1String identifier)
{
    const int tag = Presets::tagOf(identifier);
    mTags.removeOne(tag);
    if (mSelectedTag == tag) {
        mSelectedTag = mTags.isEmpty() ? std::nullopt : std::optional(mTags.first());
    }
}

void View::shrink(int removedHeight)
{
    const int height = std::max(leastHeight, mHeight - removedHeight);
    for (Control &control : mControls) {
        control.y -= mHeight - height;
    }
    mHeight = height;
}

bool View::isUsable(std::size_t outlet) const
{
    return !mControls[outlet].isHidden && mControls[outlet].isEnabled;
}

bool View::isShownAndOn(Option option) const
{
    return !mControls[option].isHidden && mIsOn[option];
}

OptionSet View::shownAndOn() const
{
    OptionSet set = {};
    for (const Option option : everyOption) {
        set[option] = isShownAndOn(option);
    }
    return set;
}

void View::select(int tag)
{
    if (hasItem(tag)) {
        mSelectedTag = tag;
    }
}

QJsonObject View::controlToJson(std::size_t outlet) const
{
    const Control &control = mControls[outlet];
    QJsonObject json{{QLatin1String("hidden"), control.isHidden},
                     {QLatin1String("enabled"), control.isEnabled},
                     {QLatin1String("x"), control.x},
                     {QLatin1String("y"), control.y},
                     {QLatin1String("width"), control.width},
                     {QLatin1String("height"), control.height}};
    if (outlet < optionCount) {
        json.insert(QLatin1String("state"), int(mIsOn[outlet]));
        json.insert(QLatin1String("title"), titles[outlet]);
    } else if (outlet == Field) {
        json.insert(QLatin1String("text"), fieldText);
    } else if (outlet == Stepper) {
        json.insert(QLatin1String("value"), stepperValue);
    } else if (outlet == Caption) {
        json.insert(QLatin1String("title"), captionTitle);
        json.insert(QLatin1String("dimmed"), isCaptionDimmed);
    }
    return json;
}

QJsonObject View::menuToJson(const QString &paperName) const
{
    QJsonArray tags;
    QJsonArray disabled;
    for (const int tag : mTags) {
        tags.append(tag);
        if (!Presets::isAllowed(tag, paperName)) {
            disabled.append(tag);
        }
    }
    return {{QLatin1String("tags"), tags},
            {QLatin1String("selected"), mSelectedTag ? QJsonValue(*mSelectedTag) : QJsonValue()},
            {QLatin1String("disabled"), disabled}};
}

QJsonObject View::toJson(const QString &paperName, bool isRV) const
{
    QJsonObject controls;
    for (std::size_t i = 0; i < OutletCount; ++i) {
        controls.insert(nib[i].outlet, controlToJson(i));
    }
    const QJsonObject size{{QLatin1String("width"), mWidth}, {QLatin1String("height"), mHeight}};
    return {{QLatin1String("view"), size},
            {QLatin1String("controls"), controls},
            {QLatin1String("popup"), menuToJson(paperName)},
            {QLatin1String("preview"), Presets::pictureFor(shownAndOn(), isRV)}};
}

} // namespace model
