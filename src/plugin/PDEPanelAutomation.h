// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QList>
#include <QString>

/// A ready-made combination of options in a panel's menu.
struct PDEPreset
{
    /// Its identifier ("AHCMOffOnOffOff"), the same in every language.
    QString identifier;
    int tag;
    /// Its name in the user's language.
    QString name;
    /// Whether it can be chosen on the current paper.
    bool isEnabled;
    bool isSelected;
};

/// What a panel offers to automation besides the dialog's protocol.
class PDEPanelAutomation
{
public:
    virtual ~PDEPanelAutomation() = default;

    /// Whether the printer is of the label-printer series.
    virtual bool isRVPrinter() const = 0;

    /// The presets in the menu's order; none before the view is made.
    virtual QList<PDEPreset> presets() const = 0;

    /// Chooses a preset as if the user had picked it from the menu; false when there is none of
    /// that identifier or it cannot be chosen now.
    virtual bool choosePreset(const QString &identifier) = 0;

    /**
     * Everything that the panel shows and remembers: "view", "controls", "popup", "selections",
     * "marks", "flags" and "preview", as docs/automation.md describes them. Lengths are in points.
     */
    virtual QJsonObject state() const = 0;
};
