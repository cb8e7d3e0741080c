// SPDX-License-Identifier: Apache-2.0
#include "kvprint/JobPlanner.h"

#include "host/ProblemReporter.h"
#include "kvprint/PrinterJob.h"

#include <QCoreApplication>

namespace {
/// How many plans are remembered.
constexpr int rememberedPlans = 1000;
/// How long a printer's PPD is taken to be the same.
constexpr std::chrono::seconds betweenQuestions(3);

QStringList keyOf(const QString &printer, const JobSetup::Wish &wish)
{
    QStringList key{printer, wish.preset};
    for (const auto &[option, value] : wish.options.pairs()) {
        key << option << value;
    }
    return key;
}
} // namespace

JobPlanner::JobPlanner(const PanelBundles &bundles, SchedulerConnection::Milliseconds silence,
                       GrowingPauses::Milliseconds retry)
    : mBundles(bundles)
    , mSilence(silence)
    , mPauses(retry)
    , mPlans(rememberedPlans)
{
}

JobPlanner::Plan JobPlanner::plan(const QString &printer, const JobSetup::Wish &wish)
{
    forgetIfChanged(printer);
    const QStringList key = keyOf(printer, wish);
    if (const Plan *known = mPlans.object(key)) {
        return *known;
    }
    QString fault;
    const PrinterRecord *known = record(printer, &fault);
    if (!known) {
        Plan none;
        none.fault = fault;
        return none;
    }
    Plan plan = make(*known, wish);
    // Nobody runs an event loop in which what the panels have left behind would be deleted.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    mPlans.insert(key, new Plan(plan));
    return plan;
}

void JobPlanner::forgetIfChanged(const QString &printer)
{
    const auto now = std::chrono::steady_clock::now();
    const auto known = mPrinters.find(printer);
    if (known == mPrinters.end() || now - known->asked < betweenQuestions) {
        return;
    }
    known->asked = now;
    PrinterRecord record = known->record;
    SchedulerConnection scheduler(mSilence);
    const auto answer = record.update(scheduler);
    if (answer != QueuePPD::Answer::Failed && record.ppd.text != known->record.ppd.text) {
        mPrinters.erase(known);
        mPlans.clear();
    }
}

const PrinterRecord *JobPlanner::record(const QString &printer, QString *fault)
{
    auto known = mPrinters.find(printer);
    if (known == mPrinters.end()) {
        const PrinterRecord asked = read(printer);
        if (!asked.error.isNull()) {
            *fault = asked.error;
            return nullptr;
        }
        known = mPrinters.insert(printer, {asked, std::chrono::steady_clock::now()});
    }
    return &known->record;
}

PrinterRecord JobPlanner::read(const QString &printer)
{
    for (;;) {
        SchedulerConnection scheduler(mSilence);
        PrinterRecord record = PrinterRecord::choose(scheduler, printer);
        if (record.error.isNull()) {
            mPauses.reset();
            return record;
        }
        QString reason;
        SchedulerConnection another(mSilence);
        const auto names = PrintQueue::names(another, &reason);
        const bool isMissing = !names.all.isEmpty() && !names.all.contains(printer);
        if (isMissing || !mPauses.wait()) {
            return record;
        }
    }
}

JobPlanner::Plan JobPlanner::make(const PrinterRecord &printer, const JobSetup::Wish &wish)
{
    Plan plan;
    plan.printer = printer.name;
    ProblemReporter reporter([&plan](const QString &problem) { plan.warnings.append(problem); });
    const auto connection =
        QObject::connect(&mEvents, &PanelEvents::alerted,
                         [&reporter](const QString &text) { reporter.report(text); });
    auto job = PrinterJob::at(printer, mBundles, reporter, &plan.fault);
    if (job) {
        plan.fault = job->apply(wish);
    }
    if (job && plan.fault.isNull()) {
        plan.options = job->jobOptions();
    }
    QObject::disconnect(connection);
    return plan;
}
