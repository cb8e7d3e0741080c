#pragma once

#include "host/JobOptions.h"

#include <QString>
#include <QStringList>

/// What the user asked kvprint for.
struct CommandLine
{
    enum class Action {
        Print,
        ShowHelp,
        ShowVersion,
        /// The arguments make no sense: see message.
        Refuse,
    };

    /// Reads the arguments, the program's name first.
    static CommandLine parse(const QStringList &arguments, const QString &version);

    Action action = Action::Print;
    /// What to show for any other action than printing.
    QString message;
    /// The queue; null for the user's default.
    QString printer;
    /// The number of copies; 0 when the user did not say.
    int copies = 0;
    /// The options in the order of the arguments.
    JobOptions options;
    QStringList files;
};
