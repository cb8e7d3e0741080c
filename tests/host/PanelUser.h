// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/DialogNames.h"

#include <QString>
#include <QStringList>

class DialogDriver;
class QPrintDialog;
class QWidget;

/// The titles of a dialog's tabs.
QStringList tabsOf(const QPrintDialog &dialog);

/// Works the cut-option panel in a print dialog as its user would.
class PanelUser
{
public:
    /// @param dialog must outlive this object.
    explicit PanelUser(DialogDriver &dialog);

    /// Turns to the panel's tab.
    bool openTab();
    /// The names of the check boxes that can be seen, sorted.
    QStringList boxes() const;
    /// Whether the check box is ticked; false when there is none.
    bool isTicked(const QString &box) const;
    /// Whether the control can be used.
    bool isEnabled(const QString &control) const;
    bool click(const QString &box);
    /// Replaces the count by typing.
    bool typeCount(const QString &text);
    /// Presses the stepper's upper or lower arrow.
    bool step(bool up);
    /// The text of the count field; null when it cannot be seen.
    QString count() const;
    /// The presets' tags in the menu's order.
    QList<int> presets() const;
    /// The selected preset's tag; 0 for none.
    int selectedPreset() const;
    /// Opens the menu of presets and clicks the one with that tag.
    bool pickPreset(int tag);
    /// "TITLE: VALUE" of every line of the summary's tab.
    QStringList summary() const;

private:
    QWidget *visible(const QString &name) const;

    DialogDriver &mDialog;
};
