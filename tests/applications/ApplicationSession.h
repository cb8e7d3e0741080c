// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ApplicationRun.h"
#include "RemotePrintDialog.h"

/// A user at a display who has started an application.
class ApplicationSession
{
public:
    ApplicationSession(const DisplayServer &display, const Application &application,
                       const ApplicationRun::Setting &setting = ApplicationRun::Setting());

    ApplicationRun &run() { return mRun; }
    RemotePrintDialog &dialog() { return mDialog; }

    /// Opens the dialog at a printer.
    bool openAt(const QString &printer);
    /// Opens the dialog at a printer and turns to the panel.
    bool openPanelAt(const QString &printer);
    /// Quits, and waits for the end: what was not as it should be, empty when the exit status is 0
    /// and nothing of the other version of Qt has been mapped before.
    QString end();

private:
    ApplicationRun mRun;
    RemotePrintDialog mDialog;
};
