// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/SchedulerConnection.h"
#include "dialog/PrintDialogAttachment.h"
#include "host/LastChoices.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"
#include "kvprint/CommandLine.h"

#include <QPrintDialog>
#include <QPrinter>

#include <memory>

struct PrinterRecord;

/// kvprint's exit statuses.
enum class ExitStatus {
    Printed = 0,
    Cancelled = 1,
    /// A check has remarks.
    HasRemarks = 1,
    Usage = 2,
    NotPrinted = 3,
    /// A line of a script or a batch was faulty.
    LineFailed = 4,
    /// The job was stopped, cancelled or aborted.
    NotCompleted = 5,
};

/// One run of kvprint: opens the print dialog for the files and prints them.
class PrintCommand
{
public:
    /// @param bundleFolder where the panels' bundles are.
    PrintCommand(CommandLine commandLine, QString bundleFolder);
    ~PrintCommand();

    /// Makes the dialog; null, with the status and a report, when nothing can be printed.
    QPrintDialog *prepare(ExitStatus *status);

    /// Prints as the dialog, which the user has accepted, says.
    ExitStatus print();

    /// The whole run, with the user at the dialog; shows why nothing was printed when the command
    /// line wants that.
    ExitStatus run();

    /// The attachment to the dialog; null before prepare(), and when the dialog has been deleted.
    PrintDialogAttachment *attachment() const { return mAttachment; }
    /// The number of the job that print() sent; 0 for none.
    int jobId() const { return mJobId; }

private:
    /// Has the user choose in the dialog, and prints.
    ExitStatus printByDialog();
    /// Reports why nothing is printed, unless that is null.
    void fail(const QString &fault);
    /// How long the scheduler may be silent.
    SchedulerConnection::Milliseconds schedulerLimit() const;
    /// Spells the options as the printer does. ExitStatus::Printed when they are valid.
    ExitStatus checkOptions(const PrinterRecord &printer);
    /// Takes the number of copies out of the options: from then on the dialog has it.
    int takeCopies();
    /// What the printer, as the dialog left it, says of copies, pages, paper, sides and colours.
    JobOptions optionsOfPrinter() const;
    JobOptions optionsOfJob() const;

    CommandLine mCommandLine;
    QString mBundleFolder;
    ProblemReporter mReporter;
    PanelBundles mBundles;
    LastChoices mLastChoices;
    std::unique_ptr<QPrinter> mPrinter;
    /// Deleted with the command; null when somebody else has deleted it.
    QPointer<QPrintDialog> mDialog;
    QPointer<PrintDialogAttachment> mAttachment;
    /// What the dialog says as long as the user has not touched it.
    JobOptions mOptionsAtStart;
    int mJobId = 0;
    /// Why nothing is printed; null for nothing.
    QString mFault;
};
