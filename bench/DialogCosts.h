// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/DialogSite.h"
#include "bench/ExtensionTimes.h"

#include <iosfwd>
#include <map>
#include <string>

/**
 * What the extension costs an application that shows a print dialog: the time until the dialog is
 * on the screen, the requests to the scheduler, and the longest time for which the application does
 * not answer, each with the extension and without it in turn.
 */
class DialogCosts
{
public:
    /// Measures the opening of dialogs, first and again, for a printer with a panel and for one
    /// without.
    void measureOpenings(const DialogApplication &application);

    /// Measures each moment of a dialog, at a scheduler that answers at once, late, and never.
    void measureMoments(const DialogApplication &application);

    /// Prints the tables.
    void print(std::ostream &stream) const;

private:
    struct Moment;
    struct Answers;
    /// How many requests there have been, without the extension and with it.
    struct Requests
    {
        int without = 0;
        int with = 0;
    };

    void open(const DialogApplication &application, const char *printer, const std::string &name,
              bool isExtended);
    void work(const DialogApplication &application, const Answers &answers, bool isExtended);

    DialogSite mSite;
    ExtensionTimes mTimes;
    std::map<std::string, Requests> mRequests;

    static const Moment allMoments[];
    static const Answers allAnswers[];
};
