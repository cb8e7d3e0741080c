#pragma once

#include <QHash>
#include <QString>

class ProblemReporter;

/**
 * In which applications print dialogs are extended: the section "Applications" of the files
 * kvprint/dialog.conf, the user's (below ~/.config) and the system's (below /etc/xdg).
 *
 * A key is the name of a program's file, or "*" for all that have no key of their own. Its value is
 * "on" or "off". What the user's file says goes before the system's.
 */
class DialogSettings
{
public:
    /// @param reporter told once of a file or value that makes no sense; must outlive the settings.
    explicit DialogSettings(ProblemReporter &reporter);

    /// Reads whether the dialogs of the program are extended, as they are unless a file says "off".
    bool isOn(const QString &program) const;

private:
    /// A line of the section.
    struct Line;

    /// Adds the lines of a file whose keys have none yet.
    void read(const QString &file, QHash<QString, Line> &lines) const;

    ProblemReporter &mReporter;
};
