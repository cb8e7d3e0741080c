// SPDX-License-Identifier: Apache-2.0
#include "Job.h"

#include <algorithm>

namespace model {
namespace {
bool isSame(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}
} // namespace

bool isLabelName(const QString &paperName)
{
    static const QLatin1String prefixes[] = {QLatin1String("DC"), QLatin1String("AV"),
                                             QLatin1String("FL"), QLatin1String("C_")};
    return std::ranges::any_of(prefixes,
                               [&](QLatin1String prefix) { return paperName.startsWith(prefix); });
}

Job::Job(const Printer &printer, std::optional<Ticket> ticket, JobPaper paper, bool marksDefaults)
    : mPrinter(&printer)
    , mTicketPaperName(ticket ? ticket->readablePaperName() : QString())
    , mPaper(std::move(paper))
{
    for (const Option option : everyOption) {
        if (marksDefaults && printer.option(option)) {
            mark(namesOf(option).keyword, printer.option(option)->defaultChoice);
        }
    }
}

bool Job::mark(const QString &keyword, const QString &choice)
{
    for (const Option option : everyOption) {
        const PrinterOption *found = mPrinter->option(option);
        if (!found || !isSame(namesOf(option).keyword, keyword)) {
            continue;
        }
        for (const Choice &candidate : found->choices) {
            if (isSame(candidate.keyword, choice)) {
                mMarks[option] = candidate.keyword;
                return true;
            }
        }
    }
    return false;
}

QString Job::marked(Option option) const
{
    return mMarks[option];
}

int Job::markedIndex(Option option) const
{
    const PrinterOption *found = mPrinter->option(option);
    return found && !mMarks[option].isNull() ? found->indexOf(mMarks[option]) : -1;
}

int Job::markedOrDefaultIndex(Option option) const
{
    const PrinterOption *found = mPrinter->option(option);
    const int marked = markedIndex(option);
    return marked < 0 && found ? found->defaultIndex() : marked;
}

Medium Job::medium() const
{
    const bool isFromTicket = mPaper.name.isNull();
    Medium medium{isFromTicket ? mTicketPaperName : mPaper.name, 0};
    // Not known, or no height at all: the lookup stops here.
    if (mPaper.height <= 0.0) {
        return medium;
    }
    if (isFromTicket || mPaper.name.isEmpty()) {
        medium.tapeState = 2;
    } else if (mPrinter->heightOf(mPaper.name)) {
        const bool isCustom = mPaper.name.startsWith(QLatin1String("Custom"));
        medium.tapeState = isLabelName(mPaper.name) ? 1 : isCustom ? 2 : 0;
    }
    return medium;
}

} // namespace model
