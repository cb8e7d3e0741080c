// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <iosfwd>
#include <string>
#include <vector>

/// An application that shows no print dialog.
struct StartedApplication
{
    /// What it is called in the results.
    std::string title;
    QString program;
    /// A library that ends it when it has been seen, as bench/start/Leaver.cpp does.
    QString leaver;
    /// Where it runs with the extension.
    QProcessEnvironment extended;
    /// Where it runs otherwise.
    struct Other
    {
        /// What this start is called in the results.
        std::string title;
        QProcessEnvironment environment;
    };
    /// The first is without the extension.
    std::vector<Other> others;
    /// Whether it maps something of ours with the extension.
    bool mapsExtension = false;
};

/**
 * What the extension costs an application that shows no print dialog: the application is started
 * and left when it has been seen, with the extension and without it in turn, many times.
 *
 * Throws std::runtime_error when the application cannot be run or does not map what it should.
 */
class StartComparison
{
public:
    /// @param buildFolder holds all files of ours.
    StartComparison(StartedApplication application, QString buildFolder);

    /// Measures, and prints the times, their difference and the files of ours that are mapped.
    void run(std::ostream &stream) const;

private:
    QStringList mappedLibraries(QProcessEnvironment environment) const;

    StartedApplication mApplication;
    QString mBuildFolder;
};
