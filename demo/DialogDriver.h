// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QPrintDialog;
class QWidget;

/**
 * Works Qt's print dialog as its user would: with mouse clicks on what can be seen.
 *
 * A function answers false, and does nothing, when what is to be clicked is not there, hidden or
 * disabled.
 */
class DialogDriver
{
public:
    /// @param dialog must outlive the driver.
    explicit DialogDriver(QPrintDialog &dialog);

    /// Opens the dialog and waits until it can be used, with what the scheduler tells of its
    /// printer.
    bool open();
    /// Unfolds the tabs below the printer.
    bool showOptions();
    /// Turns to the tab of that title.
    bool showTab(const QString &title);
    /// Clicks the check box of that object name.
    bool click(const QString &checkBox);
    /// Picks another printer from the menu, and waits until the scheduler has told what it has.
    bool pickPrinter(const QString &name);
    /// Opens the Properties dialog, picks the paper with that PPD name, and accepts or cancels.
    bool pickPaper(const QString &ppdName, bool accept = true);
    /// Presses Print.
    bool print();
    /// Presses Cancel.
    bool cancel();

    /// The dialog's widget of that object name; null when there is none.
    QWidget *widget(const QString &name) const;

    /// Waits until the scheduler has told what the dialog's printer has.
    bool awaitPrinter();

private:
    bool pressButton(int role);

    QPrintDialog &mDialog;
};
