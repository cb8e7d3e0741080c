// SPDX-License-Identifier: Apache-2.0
#include "bench/DialogCosts.h"

#include "bench/Interruption.h"

#include <algorithm>
#include <iterator>
#include <ostream>

namespace {
using namespace std::chrono_literals;

/// The times of single dialogs differ by a third.
constexpr int openingPairs = 25;
constexpr int mostRequests = 3;
/// More than three late answers take.
constexpr auto patience = 3s;
constexpr Aim onScreen = {Aim::Kind::Ratio, 1.05};
constexpr Aim unnoticed = {Aim::Kind::Difference, 0.05};

constexpr const char *openingTimes[] = {"", ", again"};
} // namespace

/// What a dialog is asked to do.
struct DialogCosts::Moment
{
    const char *name;
    const char *deed;
    /// Whether Qt itself waits for the scheduler: for another printer, and to print.
    bool isQtWaiting = false;
};

/// How the scheduler answers once the dialog has been made.
struct DialogCosts::Answers
{
    const char *name;
    std::chrono::milliseconds delay;
    bool isStopped;
    int pairs;

    /// What can be asked of a dialog while it answers like that, in order.
    std::vector<Moment> moments() const;
    /// What the time of a moment is called.
    std::string timeOf(const Moment &moment) const
    {
        return std::string(name) + ": " + moment.name;
    }
};

const DialogCosts::Moment DialogCosts::allMoments[] = {
    {"shown", "show"},    {"tab turned", "turn"},  {"printer changed", "pick", true},
    {"Cancel", "cancel"}, {"shown again", "show"}, {"Print", "print", true},
};

const DialogCosts::Answers DialogCosts::allAnswers[] = {
    {"at once", 0ms, false, 5}, {"after 0.5 s", 500ms, false, 3}, {"never", 0ms, true, 3}};

std::vector<DialogCosts::Moment> DialogCosts::Answers::moments() const
{
    std::vector<Moment> moments;
    std::copy_if(std::begin(allMoments), std::end(allMoments), std::back_inserter(moments),
                 [this](const Moment &moment) { return !isStopped || !moment.isQtWaiting; });
    return moments;
}

void DialogCosts::measureOpenings(const DialogApplication &application)
{
    std::vector<std::string> names;
    for (const auto &[printer, title] :
         {std::pair("tape", "printer with a panel"), {"plain", "printer without a panel"}}) {
        const std::string name = application.title + ", " + title;
        for (int pair = 0; pair < openingPairs; ++pair) {
            open(application, printer, name, pair % 2 == 0);
            open(application, printer, name, pair % 2 != 0);
        }
        for (const char *time : openingTimes) {
            names.push_back(name + time);
        }
    }
    mTimes.compare("Print dialogs, until they are on the screen: " + application.title, names,
                   onScreen);
}

void DialogCosts::open(const DialogApplication &application, const char *printer,
                       const std::string &name, bool isExtended)
{
    Interruption::check();
    const int before = mSite.requests();
    const auto run = mSite.start(application, printer, isExtended, patience);
    for (const char *time : openingTimes) {
        run->time("make");
        mTimes.add(name + time, isExtended, run->time("show").untilSeen);
        if (!*time) {
            Requests &requests = mRequests[name];
            (isExtended ? requests.with : requests.without) = mSite.requests() - before;
        }
        run->time("cancel");
    }
}

void DialogCosts::measureMoments(const DialogApplication &application)
{
    for (const Answers &answers : allAnswers) {
        for (int pair = 0; pair < answers.pairs; ++pair) {
            work(application, answers, pair % 2 == 0);
            work(application, answers, pair % 2 != 0);
        }
        std::vector<std::string> names;
        for (const Moment &moment : answers.moments()) {
            names.push_back(answers.timeOf(moment));
        }
        mTimes.compare(std::string("The longest time for which an application with a print dialog "
                                   "does not answer: the scheduler does ") +
                           answers.name,
                       names, unnoticed);
    }
}

void DialogCosts::work(const DialogApplication &application, const Answers &answers,
                       bool isExtended)
{
    Interruption::check();
    const auto run =
        mSite.start(application, "tape", isExtended, answers.isStopped ? 0ms : patience);
    run->time("make");
    mSite.delayAnswers(answers.delay);
    mSite.stop(answers.isStopped);
    for (const Moment &moment : answers.moments()) {
        mTimes.add(answers.timeOf(moment), isExtended, run->time(moment.deed).longest);
    }
    mSite.stop(false);
    mSite.delayAnswers(0ms);
}

void DialogCosts::print(std::ostream &stream) const
{
    mTimes.print(stream);
    stream << "\nRequests to the scheduler until a dialog is there\n";
    for (const auto &[name, requests] : mRequests) {
        const int more = requests.with - requests.without;
        stream << name << ": " << requests.without << " without the extension, " << requests.with
               << " with it; at most " << mostRequests
               << " more: " << (more <= mostRequests ? "met\n" : "missed\n");
    }
}
