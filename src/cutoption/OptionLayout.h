// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <span>

class Bundle;
class QWidget;
struct OptionOutlets;
struct OptionRecords;

/// Lays out the panel's nib for the options that the PPD has: which controls are shown and where,
/// and which presets the menu keeps. All lengths are in points.
class OptionLayout
{
public:
    /// @param hasAutoCutBox whether auto cut has a check box of its own.
    OptionLayout(OptionOutlets &outlets, const OptionRecords &records, bool hasAutoCutBox);

    /// Widens the nib's view and the column of the check boxes in it.
    void widen(QWidget *view, double by);
    /// Makes the count's field as high as its font needs, with its text in line with the caption's.
    void alignFieldLine();
    void hideControls();
    /// Removes the presets that make no sense for the printer's family.
    void removePresetsOfOtherFamily(bool isLabelSeries);
    /**
     * Shows the rows one below the other, and removes the presets that make no sense with the rows
     * that are shown, or without those that are not.
     *
     * @param viewHeight of the nib's view.
     * @return how much lower the view can be.
     */
    int layOutRows(double viewHeight);
    /// Shows the remaining presets as pictures, with their names for those who do not see them.
    void dressMenu(const Bundle &bundle);
    /// Puts the preview where the dummy view is.
    void insertPreview(const Bundle &bundle, bool isLabelSeries);

private:
    void removePresets(std::span<const char *const> identifiers);
    double layOutCutEveryFields(double boxOrigin);

    OptionOutlets &mOutlets;
    const OptionRecords &mRecords;
    bool mHasAutoCutBox;
};
