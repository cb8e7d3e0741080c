// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcess>
#include <QString>

#include <chrono>
#include <string>

/// An application that shows a print dialog, and how it is run.
struct DialogApplication
{
    /// What it is called in the results.
    std::string title;
    QString program;
    /// Where its Qt finds the extension's plug-in, in the subfolder "generic".
    QString pluginFolder;
    /// Where it runs: its display and its home.
    QProcessEnvironment environment;
};

/**
 * One run of an application that does with a print dialog what it is told (bench/dialog/main.cpp).
 *
 * Throws std::runtime_error when it ends too early.
 */
class DialogRun
{
public:
    struct Times
    {
        /// Seconds until the dialog's first picture was on the screen.
        double untilSeen = 0.0;
        /// The longest time in seconds for which the application did not answer.
        double longest = 0.0;
    };

    /// @param patience how long the application waits, whatever it does, until the scheduler has
    ///        told the extension what the printer has.
    DialogRun(const DialogApplication &application, const QString &printer, bool isExtended,
              std::chrono::milliseconds patience);
    ~DialogRun();

    /// Has the application do it, and waits until it has been done.
    Times time(const char *deed);

private:
    QProcess mProcess;
};
