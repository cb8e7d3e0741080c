// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QMetaType>
#include <QProcess>
#include <QStringList>

#include <functional>

/// A change to the file of that path; answers false when it fails.
using FileChange = std::function<bool(const QString &path)>;
Q_DECLARE_METATYPE(FileChange)

/// Adds a column "qt" and a row for each version of Qt that the plug-in is built for.
void addQtVersionRows();

/// A run of an application that shows print dialogs and knows nothing of us.
class DialogOpener
{
public:
    /**
     * Starts the application of that version of Qt with the plug-in switched on, and with the
     * settings of these folders in place of those in ~/.config and /etc/xdg.
     *
     * The user's folder is the application's current folder.
     *
     * @param libraries the folder of libraries that the plug-in is in.
     */
    DialogOpener(const QString &qt, const QString &userFolder, const QString &systemFolder,
                 const QString &libraries = QStringLiteral(KV_LIBRARIES));
    ~DialogOpener();

    /// The titles of the tabs of a new dialog for the printer; none when the application is gone.
    QStringList tabs(const QString &printer);
    /// What the application answers when it shows a new dialog for the printer in one of the ways
    /// of dialogopener.cpp.
    QStringList answer(const QString &way, const QString &printer);
    /// Whether the application has loaded a library of that name up to now.
    bool hasLoaded(const QString &library) const;
    /// Whether it has loaded anything from a folder up to now.
    bool hasLoadedFrom(const QString &folder) const;
    /// Ends the application: the lines that are ours of what it has written to its standard error,
    /// null after a crash.
    QString finish();

private:
    QByteArray mappedFiles() const;

    QProcess mProcess;
};
