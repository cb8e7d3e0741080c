// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtPlugin>

class QObject;

/**
 * The interface of the extension's library to the plug-in that waits for print dialogs. Until its
 * first print dialog an application loads only the plug-in.
 */
class PrintDialogExtender
{
public:
    virtual ~PrintDialogExtender() = default;

    /// Extends a QPrintDialog that has been shown, or is just being hidden again, and has not been
    /// extended before.
    virtual void extend(QObject *printDialog) = 0;
};

#define PrintDialogExtender_iid "com.korvane.print.PrintDialogExtender"
Q_DECLARE_INTERFACE(PrintDialogExtender, PrintDialogExtender_iid)
