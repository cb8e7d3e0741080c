// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPanelAutomation.h"
#include "ppd/PPD.h"

struct OptionOutlets;
struct OptionRecords;

/// What the panel shows and remembers, in JSON for automation. Lengths are in points.
namespace OptionState {
/// The size of the nib's view; null without a view.
QJsonValue ofView(const QWidget *view);
/// Each control that the nib has, under its object name.
QJsonObject ofControls(const OptionOutlets &outlets);
/// The tags of the menu's items, of the selected one and of those that cannot be chosen.
QJsonObject ofMenu(const QList<PDEPreset> &presets);
/// The keyword of each selection, under the field's name; null for none.
QJsonObject ofSelections(const OptionRecords &records);
/// The marked choice of each option that the PPD has; null for none.
QJsonObject ofMarks(const OptionRecords &records, ppd_file_t *ppd);
/// The name of the picture in the preview; null for none.
QJsonValue ofPreview(const OptionOutlets &outlets);
} // namespace OptionState
