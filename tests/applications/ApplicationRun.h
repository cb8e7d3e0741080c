// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Application.h"
#include "OwnedProcess.h"

#include <QTemporaryDir>

class DisplayServer;

/// An application that runs with the print dialog extension and the inspector, and with folders of
/// its own for whatever it keeps.
class ApplicationRun
{
public:
    /// What is different from an ordinary run.
    struct Setting
    {
        /// "NAME=VALUE" of environment variables.
        QStringList variables;
        /// The folder of libraries that the extension is in.
        QString libraries = QStringLiteral(KV_LIBRARIES);
    };

    /// @param display must outlive the run.
    ApplicationRun(const DisplayServer &display, const Application &application,
                   const Setting &setting);

    const Application &application() const { return mApplication; }
    /// The socket of the inspector in it.
    QString inspectorSocket() const { return mHome.filePath(u"inspector"_s); }
    /// The application's home folder.
    QString home() const { return mHome.path(); }

    /// The names of all libraries of ours that are mapped into it now, sorted.
    QStringList ownLibraries() const;
    /// The paths of what is mapped into it now from a folder.
    QStringList filesMappedFrom(const QString &folder) const;
    /// The paths of what is mapped into it of the other version of Qt.
    QStringList foreignLibraries() const;

    /// Waits until it has ended: its exit status, -1 when it crashed or did not end.
    int exitStatus();
    /// What it has written to standard error.
    QStringList errors();
    /// The lines of it that are ours.
    QStringList ownErrors();

private:
    QProcessEnvironment environment(const DisplayServer &display, const Setting &setting) const;
    QStringList mappedFiles() const;

    Application mApplication;
    QTemporaryDir mHome;
    QByteArray mErrors;
    OwnedProcess mProcess;
};
