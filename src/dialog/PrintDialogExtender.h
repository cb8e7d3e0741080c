#pragma once

#include <QtPlugin>

class QObject;

/**
 * What the library of the print dialog extension offers to the plug-in that waits for print
 * dialogs: the plug-in is all that an application loads until its first print dialog.
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
