// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Presets.h"
#include "Printer.h"

#include <QJsonObject>

namespace model {

/// The panel's view: its controls where they are and as they look.
class View
{
public:
    /// A control, by its outlet: the nine check boxes are the options'.
    enum Outlet : std::size_t {
        Field = optionCount,
        Stepper,
        Caption,
        Menu,
        OutletCount,
    };

    /// What every control has; points, y from the view's bottom.
    struct Control
    {
        int x;
        int y;
        int width;
        int height;
        bool isHidden = false;
        bool isEnabled = true;
    };

    /// The nib laid out for a printer.
    explicit View(const Printer &printer);

    int width() const { return mWidth; }
    int height() const { return mHeight; }

    Control &control(std::size_t outlet) { return mControls[outlet]; }
    const Control &control(std::size_t outlet) const { return mControls[outlet]; }
    /// Whether the user can use a control.
    bool isUsable(std::size_t outlet) const;
    void setEnabled(std::size_t outlet, bool isEnabled) { mControls[outlet].isEnabled = isEnabled; }

    bool isOn(Option option) const { return mIsOn[option]; }
    void setOn(Option option, bool isOn) { mIsOn[option] = isOn; }
    /// Whether a box is to be seen and on.
    bool isShownAndOn(Option option) const;
    OptionSet shownAndOn() const;

    /// Selects the menu's item; changes nothing when it has been removed.
    void select(int tag);
    std::optional<int> selectedTag() const { return mSelectedTag; }
    bool hasItem(int tag) const { return mTags.contains(tag); }

    /// The members of the answer on the panel's state that are about the view.
    QJsonObject toJson(const QString &paperName, bool isRV) const;

    std::array<QString, optionCount> titles;
    QString fieldText;
    qint32 stepperValue = 0;
    QString captionTitle;
    bool isCaptionDimmed = false;

private:
    void layOut(const Printer &printer);
    void showRow(Option option, int &y);
    void showCount(int y);
    void removeItem(QLatin1String identifier);
    void shrink(int removedHeight);
    QJsonObject controlToJson(std::size_t outlet) const;
    QJsonObject menuToJson(const QString &paperName) const;

    int mWidth;
    int mHeight;
    std::array<Control, OutletCount> mControls;
    OptionSet mIsOn = {};
    QList<int> mTags;
    std::optional<int> mSelectedTag;
};

} // namespace model
