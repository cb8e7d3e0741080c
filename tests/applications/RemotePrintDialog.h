// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Inspector.h"
#include "RemoteUser.h"

class ApplicationRun;
class DisplayServer;

/**
 * The print dialog of an application, worked with mouse and keyboard.
 *
 * A function that does something waits until it can be done and until its effect is seen, and
 * answers whether it was.
 */
class RemotePrintDialog
{
public:
    /// @param display and @param run must outlive the object.
    RemotePrintDialog(const DisplayServer &display, const ApplicationRun &run);

    /// Waits until the application can print.
    bool awaitApplication();
    /// Opens the dialog by the application's shortcut.
    bool open();
    /// Picks a printer from the menu, unless it is the chosen one.
    bool pickPrinter(const QString &name);
    /// The printers on the menu.
    QStringList printers();
    /// Unfolds the tabs.
    bool unfold();
    /// The titles of the tabs, unfolded or not.
    QStringList tabs();
    /// Unfolds the tabs and turns to the panel's.
    bool openPanel();
    /// Turns to the tab of that title.
    bool turnTo(const QString &title);
    /// Clicks a check box or button of the dialog by its object name or, without one, its text.
    bool click(const QString &nameOrText);
    /// Ticks a check box, or takes the tick away.
    bool tick(const QString &box, bool on = true);
    /// Replaces the count of labels by typing.
    bool typeCount(const QString &count);
    /// Picks a preset by its text.
    bool pickPreset(const QString &text);
    /// The selected preset.
    QString preset();
    /// Opens the Properties dialog, picks the paper of that text, and accepts.
    bool pickPaper(const QString &text);
    /// "KEY=CHOICE" of every option that the panel shows now, sorted.
    QStringList shownChoices();
    /// Whether a control of the panel can be used.
    bool isEnabled(const QString &control);
    /// "TITLE: VALUE" of every line of the summary, which is turned to.
    QStringList summary();
    /// Presses Print; the dialog goes.
    bool print();
    /// Presses Cancel; the dialog goes.
    bool cancel();
    /// Presses a button that makes the dialog go.
    bool leaveBy(const QString &button);
    /// Quits the application by its shortcut.
    bool quit();

    /// Saves a picture of the dialog.
    bool grab(const QString &path) { return mInspector.grab(path); }

private:
    SeenWidget control(const QString &nameOrText);
    bool pickItem(const QString &menu, const QString &text);
    bool clickRow(const QString &text);
    bool takesShortcut(const SeenWidget &window, const char *shortcut) const;

    RemoteUser mUser;
    const ApplicationRun &mRun;
    Inspector mInspector;
};
