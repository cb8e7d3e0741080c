// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "applications/OwnedProcess.h"

#include <QStringList>

class DisplayServer;

/// A run of the program with GTK's print dialog, see printdialog.cpp.
class GtkDialog
{
public:
    /// @param gtk the version of GTK, "3" or "4".
    /// @param variables "NAME=VALUE" of the program's environment besides the display's.
    GtkDialog(const QString &gtk, const DisplayServer &display, const QStringList &variables);

    /// Has the program do something; whether it has.
    bool tell(const QString &line);
    /// What there is now: "tab:Cut Options", "box:Half Cut on", "cups-KvHalfCut=ON" and so on.
    QStringList state();
    /// Waits until all of these are in the state.
    bool shows(const QStringList &parts);
    /// Waits until none of these is.
    bool lacks(const QStringList &parts);

    /// Ends the program: its exit status, -1 when it crashed.
    int end();
    /// What it has written to standard error.
    QStringList ownErrors();
    qint64 pid() const { return mProcess.processId(); }

private:
    QString ask(const QString &line);

    OwnedProcess mProcess;
};

/// The environment that has the module of the build loaded into programs with either GTK.
///
/// @param folder for the settings of GTK 3; has to exist.
QStringList gtkVariables(const QString &folder);
