// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QHash>
#include <QString>

class ProblemReporter;

/**
 * In which applications print dialogs are extended: the section "Applications" of the files
 * kvprint/dialog.conf, the user's (below ~/.config) and the system's (below /etc/xdg).
 *
 * A key is the name of a program's file, or "*" for all that have no key of their own. Its value is
 * "on" or "off". The user's file overrides the system's.
 */
class DialogSettings
{
public:
    /// @param reporter told once of each invalid file or value; must outlive the settings.
    explicit DialogSettings(ProblemReporter &reporter);

    /// Reads the files: whether the dialogs of the program are extended. The default is true.
    bool isOn(const QString &program) const;

private:
    /// A line of the section.
    struct Line;

    /// Adds those lines of a file whose keys are not in @p lines.
    void read(const QString &file, QHash<QString, Line> &lines) const;

    ProblemReporter &mReporter;
};
