// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// The words of a line.
QStringList words(const char *line);

/// An application whose print dialog is tested, as a user knows it.
struct Application
{
    /// A row of the table of applications.
    const char *name;
    /// The path of the program.
    const char *program;
    /// What it is started with; %1 stands for the document.
    QStringList arguments;
    /// The name of the document, which says what is in it; empty for none.
    const char *document;
    /// The shortcuts that open the print dialog and that quit, as Qt writes them.
    const char *printShortcut;
    const char *quitShortcut;
    /// Whether it prints anything when its dialog has been accepted.
    bool prints;
    /// The version of Qt that the program is linked with; 0 when there is no such program, or none
    /// with Qt.
    int qt = 0;

    /// The applications that this build is tested with: those whose name begins with what the
    /// environment variable KV_APPLICATION says.
    static std::vector<Application> all();
    /// Why there is nothing to test: no application, or one whose program is no program with Qt;
    /// null when all are there.
    static QString whatIsMissing(const std::vector<Application> &applications);

    /// Writes the document into a folder; its path, empty when that failed.
    QString writeDocument(const QString &folder) const;
};
