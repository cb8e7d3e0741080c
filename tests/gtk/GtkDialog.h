// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "applications/OwnedProcess.h"
#include "support/QtNames.h"

#include <QStringList>

/// A run of the program with GTK's print dialog, see printdialog.cpp.
class GtkDialog
{
public:
    /// @param gtk the version of GTK, "3" or "4".
    /// @param environment has the display, @param variables "NAME=VALUE" of what there is besides.
    GtkDialog(const QString &gtk, QProcessEnvironment environment, const QStringList &variables);

    /// Has the program do something; whether it has.
    bool tell(const QString &line);
    /// What there is now: "tab:Cut Options", "box:Half Cut on", "cups-KvHalfCut=ON" and so on.
    QStringList state();
    /// What has the focus: the text of a check box, or the type of another control.
    QString focus() { return state().filter(u"focus:"_s).value(0).section(u':', 1); }
    /// Waits until all of these are in the state.
    bool shows(const QStringList &parts);
    /// Waits until none of these is.
    bool lacks(const QStringList &parts);

    /// Ends the program: its exit status, -1 when it crashed.
    int end();
    /// What it has written to standard error.
    QStringList ownErrors();
    qint64 pid() const { return mProcess.processId(); }

    /// What the program answers to a line; null when it has ended.
    QString ask(const QString &line);

private:
    bool waitsFor(const QStringList &parts, bool areThere);

    OwnedProcess mProcess;
};

/// The environment that has the module of the build loaded into programs with either GTK.
///
/// @param folder for the settings of GTK 3; has to exist.
QStringList gtkVariables(const QString &folder);
