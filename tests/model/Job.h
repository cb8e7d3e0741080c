// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Printer.h"
#include "Ticket.h"

namespace model {

/// The paper of a job.
struct JobPaper
{
    /// Null when the paper has no name.
    QString name;
    double height = 0.0;
};

/// What the panel finds out about a job's medium.
struct Medium
{
    /// Null when nobody names it.
    QString name;
    int tapeState = 0;
};

/// What a print dialog has: the choices marked at the printer, and the job's paper and settings.
class Job
{
public:
    /// @param printer must outlive the job.
    Job(const Printer &printer, std::optional<Ticket> ticket, JobPaper paper, bool marksDefaults);

    const Printer &printer() const { return *mPrinter; }
    const JobPaper &paper() const { return mPaper; }
    void setPaper(const JobPaper &paper) { mPaper = paper; }

    /// Marks a choice; false when the printer lacks it. Letters' cases do not count.
    bool mark(const QString &keyword, const QString &choice);
    /// The keyword of the marked choice; null when none is.
    QString marked(Option option) const;
    /// The marked choice among the option's; -1 when there is none.
    int markedIndex(Option option) const;
    /// The marked choice, else the default; -1 when there is neither.
    int markedOrDefaultIndex(Option option) const;

    /// The medium, from the paper, the printer's sizes and the private ticket.
    Medium medium() const;

private:
    const Printer *mPrinter;
    QString mTicketPaperName;
    JobPaper mPaper;
    std::array<QString, optionCount> mMarks;
};

/// Whether a paper's name begins with "DC", "AV", "FL" or "C_".
bool isLabelName(const QString &paperName);

} // namespace model
