// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gtk/GtkDialog.h"
#include "gtk/SessionBus.h"

#include <QImage>
#include <QTemporaryDir>

#include <memory>

/// GTK's print dialog at the process' display, opened to be photographed at the panel's tab.
class GtkStage
{
public:
    /// What the dialog looks like.
    struct Look
    {
        /// The version of GTK, "3" or "4".
        QString gtk;
        bool isDark = false;
        int scale = 1;
        int fontPoints = 10;
    };

    explicit GtkStage(Look look);

    /// Opens the dialog at a queue's panel; false when that fails.
    ///
    /// @param hasService whether the panel service can be started.
    bool open(const QString &queue, bool hasService = true);

    /// Turns to the panel of another queue.
    bool pickPrinter(const QString &queue);
    /// Has the program do something, see tests/gtk/printdialog.cpp.
    bool tell(const QString &line) { return mDialog->tell(line); }
    /// Rests the mouse on a check box, whose number counts from 0; −1: elsewhere.
    bool restOn(int box);

    /// All that is at the display, as soon as it does not change any more.
    QImage picture() const;

private:
    Look mLook;
    QTemporaryDir mSettings;
    SessionBus mBus;
    std::unique_ptr<GtkDialog> mDialog;
};
