// SPDX-License-Identifier: Apache-2.0
#include "bench/GtkCosts.h"

#include "bench/Interruption.h"
#include "tests/applications/Waiting.h"
#include "tests/gtk/GtkDialog.h"
#include "tests/gtk/SessionBus.h"

#include <QThread>

#include <stdexcept>

namespace {
/// The times of single dialogs differ by a third.
constexpr int dialogPairs = 25;
constexpr int coldDialogs = 25;
constexpr Aim hardlyLater = {Aim::Kind::Difference, 0.005};
constexpr Aim soon = {Aim::Kind::Time, 0.15};
constexpr Aim soonWithAStart = {Aim::Kind::Time, 0.4};

constexpr char processor[] = ", processor";
constexpr char running[] = "service running";
constexpr char startedForIt[] = "service to be started";
/// Until what has ended takes no more of the processor's time.
constexpr int pauseMs = 200;

void demand(bool isSo, const QString &fault)
{
    if (!isSo) {
        throw std::runtime_error(fault.toStdString());
    }
}

} // namespace

struct GtkCosts::Times
{
    /// From being asked for to being on the screen.
    double untilSeen = 0.0;
    /// How much of the processor's time the application has needed for that.
    double processorUntilSeen = 0.0;
    /// From there until the panel is on the screen.
    double untilFilled = 0.0;
};

GtkCosts::GtkCosts(const QProcessEnvironment &display)
    : mSurroundings(display)
{
    QString error;
    mScheduler = PrivateScheduler::start(&error);
    demand(mScheduler && mScheduler->addPrinter(
                             u"tape"_s, QStringLiteral(KV_PPD_DIR "/korvane-tape.ppd"), &error),
           error);
}

GtkDialog GtkCosts::start(const QString &gtk, const SessionBus &bus, bool isExtended) const
{
    Interruption::check();
    QProcessEnvironment environment = mSurroundings.environment(isExtended);
    environment.insert(u"CUPS_SERVER"_s, QString::fromLatin1(mScheduler->address()));
    return {gtk, environment, {bus.variable()}};
}

GtkCosts::Times GtkCosts::open(GtkDialog &dialog, bool isExtended)
{
    constexpr double second = 1e6;
    QThread::msleep(pauseMs);
    demand(dialog.tell(u"open tape"_s) && dialog.shows({u"cups-KvHalfCut=OFF"_s}),
           u"GTK's dialog does not show the printer"_s);
    QList<double> times;
    const bool isOver = waitFor([&] {
        times.clear();
        for (const QString &time : dialog.ask(u"times"_s).simplified().split(u' ')) {
            times.append(time.toDouble() / second);
        }
        return times.size() == 3 && times[0] > 0.0 && (times[2] > 0.0 || !isExtended);
    });
    demand(isOver, u"GTK's dialog does not show the panel"_s);
    return {times[0], times[1], times[2] - times[0]};
}

void GtkCosts::measure(const QString &gtk)
{
    const std::string title = "GTK " + gtk.toStdString();
    SessionBus bus;
    demand(bus.open(QStringLiteral(KV_PANEL_SERVICE " --idle 600000")).isEmpty(),
           u"there is no session bus"_s);
    {
        GtkDialog starter = start(gtk, bus, true);
        open(starter, true);
    }
    for (int pair = 0; pair < dialogPairs; ++pair) {
        for (const bool isExtended : {pair % 2 == 0, pair % 2 != 0}) {
            measureOpenings(title, start(gtk, bus, isExtended), isExtended);
        }
    }
    for (int i = 0; i < coldDialogs; ++i) {
        SessionBus fresh;
        demand(fresh.open(QStringLiteral(KV_PANEL_SERVICE)).isEmpty(), u"there is no bus"_s);
        GtkDialog dialog = start(gtk, fresh, true);
        addFilling(title, startedForIt, open(dialog, true));
    }
    compare(title);
}

void GtkCosts::measureOpenings(const std::string &title, GtkDialog dialog, bool isExtended)
{
    const Times first = open(dialog, isExtended);
    add(title, first, isExtended);
    demand(dialog.tell(u"destroy"_s), u"the program with GTK's dialog has ended"_s);
    add(title + ", again", open(dialog, isExtended), isExtended);
    if (isExtended) {
        addFilling(title, running, first);
    }
}

void GtkCosts::add(const std::string &name, const Times &times, bool isExtended)
{
    mTimes.add(name, isExtended, times.untilSeen);
    mTimes.add(name + processor, isExtended, times.processorUntilSeen);
}

void GtkCosts::addFilling(const std::string &title, const char *service, const Times &times)
{
    mTimes.add(title + ", " + service, true, times.untilFilled);
}

void GtkCosts::compare(const std::string &title)
{
    const std::string again = title + ", again";
    mTimes.compare("Print dialogs, until they are on the screen: " + title,
                   {title, title + processor, again, again + processor}, hardlyLater);
    ComparisonGroup group = {"From there until the panel is on the screen: " + title, {}};
    for (const auto &[service, aim] :
         {std::pair<const char *, Aim>(running, soon), {startedForIt, soonWithAStart}}) {
        group.comparisons.push_back({title + ", " + service, {}, aim});
    }
    mTimes.compare(std::move(group));
}

void GtkCosts::print(std::ostream &stream) const
{
    mTimes.print(stream);
}
