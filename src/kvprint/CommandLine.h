// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"

#include <QString>
#include <QStringList>

/// What the user asked kvprint for.
struct CommandLine
{
    enum class Action {
        /// Open the dialog and print.
        Print,
        /// Print, or tell what would be printed, without a dialog.
        PrintDirectly,
        /// Tell the printers' options and presets.
        List,
        /// Write a picture of the panel.
        Screenshot,
        RunScript,
        /// Print many jobs, each a line of a file.
        PrintBatch,
        /// Tell what a queue or PPDs get, and what is wrong.
        Check,
        /// The same of a keyword map.
        CheckMap,
        ShowHelp,
        ShowVersion,
        /// The arguments make no sense: see message.
        Refuse,
    };

    /// Reads the arguments, the program's name first.
    static CommandLine parse(const QStringList &arguments, const QString &version);

    Action action = Action::Print;
    /// What to show for ShowHelp, ShowVersion and Refuse.
    QString message;
    /// The queue; null when the user did not say.
    QString printer;
    /// The PPD to work on without a scheduler; null for none.
    QString ppd;
    /// The identifier of the preset to start from; null for none.
    QString preset;
    /// Whether PrintDirectly only tells what it would do.
    bool isDryRun = false;
    /// Whether List, Check or CheckMap writes JSON instead of a table.
    bool asJSON = false;
    /// Whether to wait until the job has ended.
    bool wait = false;
    /// Whether Print shows errors in a window as well.
    bool alerts = false;
    /// The script of RunScript or the batch of PrintBatch, "-" for standard input; the picture of
    /// Screenshot; the map of CheckMap.
    QString actionFile;
    /// The number of copies; 0 when the user did not say.
    int copies = 0;
    /// How many seconds the scheduler may be silent.
    int timeout = 10;
    /// For how many seconds PrintBatch and wait try again what may work later.
    int retry = 300;
    /// How many jobs of a batch may wait for each printer.
    int pending = 1000;
    /// The line to continue a batch from, which then has a journal; 0 for a new batch.
    int continueFrom = 0;
    /// The batch's journal; null when the user did not say.
    QString journal;
    /// The options in the order of the arguments.
    JobOptions options;
    /// What to print, or the PPDs to check.
    QStringList files;
};
