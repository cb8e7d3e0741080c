// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelUser.h"
#include "demo/DialogDriver.h"
#include "kvprint/PrintCommand.h"

#include <memory>

/// One run of kvprint within the test, its dialog worked by the test.
class CommandRun
{
public:
    /**
     * @param options as the arguments of -o.
     */
    CommandRun(const QString &printer, const QStringList &files, const QStringList &options = {},
               int copies = 0);

    /// Prepares and opens the dialog.
    bool open();
    /// Opens the dialog and turns to the panel's tab.
    bool openTab();
    /// Presses Print and sends the job: its number, 0 for none.
    int print();

    PrintCommand &command() { return mCommand; }
    /// The dialog's user; only once it is open.
    DialogDriver &user() { return *mUser; }
    PanelUser panel() { return PanelUser(*mUser); }

private:
    PrintCommand mCommand;
    std::unique_ptr<DialogDriver> mUser;
};
