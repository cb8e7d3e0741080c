// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "demo/DialogDriver.h"
#include "kvprint/PrintCommand.h"

#include <QImage>
#include <QTemporaryDir>

#include <memory>

class QPrintDialog;
class QScrollArea;

/// kvprint's print dialog, opened to be photographed at the panel's tab.
class DialogStage
{
public:
    DialogStage();
    ~DialogStage();
    DialogStage(const DialogStage &) = delete;
    DialogStage &operator=(const DialogStage &) = delete;

    /// Opens the dialog at a queue's panel; false when there is none.
    bool open(const QString &queue);

    /// Turns to the panel of another queue.
    bool pickPrinter(const QString &queue);
    /// Clicks a check box.
    bool click(const QString &checkBox);
    /// Unfolds the menu of presets.
    bool openMenu();
    /// Rests the mouse on a control until its tool tip is there.
    bool restOn(const QString &control);
    /// Turns to the summary's tab.
    bool showSummary();

    /// The whole dialog with the menus and tips that are open over it.
    QImage picture() const;
    /// The panel's tab alone.
    QImage panelPicture() const;

private:
    bool showPanel();
    QScrollArea *panelTab() const;

    QTemporaryDir mFolder;
    std::unique_ptr<PrintCommand> mCommand;
    QPrintDialog *mDialog = nullptr;
    std::unique_ptr<DialogDriver> mUser;
};
