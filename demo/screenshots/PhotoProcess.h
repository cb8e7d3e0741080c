// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "tests/applications/DisplayServer.h"

#include <QProcess>
#include <QString>
#include <QStringList>

#include <optional>

/**
 * A process that takes pictures, with one version of Qt, in one language and at one scale: Qt takes
 * both over when a program starts.
 */
class PhotoProcess
{
public:
    struct Task
    {
        QString program;
        QStringList arguments;
        QString language;
        QString scale;
        /// Whether it needs a display, since its Qt cannot be told of a screen without one.
        bool needsDisplay = false;
    };

    /// @param folder is for files of the process, and outlives it.
    PhotoProcess(Task task, const QString &folder);

    /// Starts the process, and its display; the reason when that fails.
    QString start();
    /// Waits for its end; whether it has taken the pictures.
    bool finish();

private:
    QString openScreen(QProcessEnvironment &environment);
    /// Describes the screen to Qt's platform without a display.
    bool writeScreen(const QString &path) const;
    int screenSize() const;

    Task mTask;
    QString mFolder;
    std::optional<DisplayServer> mDisplay;
    QProcess mProcess;
};
