#pragma once

#include <QString>
#include <QStringList>

#include <iosfwd>
#include <string>

/**
 * What the plug-in costs an application that shows no print dialog: the application is started and
 * ends by itself, with the plug-in and without it in turn, many times.
 *
 * Throws std::runtime_error when the application cannot be run or does not map what it should.
 */
class StartComparison
{
public:
    /**
     * @param program that ends by itself, and prints its mapped files when given an argument.
     * @param pluginFolder where Qt finds the plug-in, in its subfolder "generic".
     * @param buildFolder holds all files of ours.
     */
    StartComparison(QString program, QString pluginFolder, QString buildFolder);

    /// Measures, and prints the times, their difference and the files of ours that are mapped.
    void run(std::ostream &stream, const std::string &title) const;

private:
    QStringList mappedLibraries(bool hasPlugIn) const;

    QString mProgram;
    QString mPluginFolder;
    QString mBuildFolder;
};
