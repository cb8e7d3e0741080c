// SPDX-License-Identifier: Apache-2.0
#include "bench/BenchSite.h"
#include "bench/Clicks.h"
#include "bench/DialogCosts.h"
#include "bench/Drawings.h"
#ifdef KV_HAS_GTK
#include "bench/GtkCosts.h"
#include "bench/GtkStarts.h"
#endif
#include "bench/Interruption.h"
#include "bench/JobCosts.h"
#include "bench/LongEdits.h"
#include "bench/MedianReporter.h"
#include "bench/Openings.h"
#include "bench/RatioTable.h"
#include "bench/StartComparison.h"
#include "bench/Tickets.h"
#include "demo/Output.h"
#include "tests/applications/DisplayServer.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <tuple>
#include <vector>

namespace {
/// As a shell tells that a program was interrupted.
constexpr int interruptedStatus = 128 + SIGINT;

/// Takes the options for all measurements, and returns the other arguments.
std::vector<std::string> initialise(int argc, char **argv)
{
    // Whatever the machine is busy with meanwhile then meets all measurements alike.
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments = {argv[0], interleaving.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = int(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    return {arguments.begin() + 1, arguments.begin() + count};
}

/// Gives the process a home folder, before its first call of libcups.
QString liveIn(const QTemporaryDir &home)
{
    const QByteArray path = QFile::encodeName(home.path());
    qputenv("HOME", path);
    qputenv("XDG_RUNTIME_DIR", path);
    return home.path();
}

void measurePanel(const QString &home)
{
    BenchSite site(home);
    Openings openings(site);
    Clicks clicks(site);
    Drawings drawings(site);
    openings.add();
    clicks.add();
    drawings.add();
    LongEdits::add();
    Tickets::add();
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    RatioTable(reporter.medians())
        .print(std::cout, {Openings::comparisons(), Clicks::comparisons(), Drawings::comparisons(),
                           LongEdits::comparisons(), Tickets::comparisons()});
}

std::unique_ptr<DisplayServer> openDisplay()
{
    auto server = std::make_unique<DisplayServer>();
    if (const QString fault = server->open(); !fault.isEmpty()) {
        throw std::runtime_error(fault.toStdString());
    }
    return server;
}

QProcessEnvironment environmentAt(const QString &display)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), display);
    return environment;
}

QString pluginFolder(int qt)
{
    return QStringLiteral(KV_LIBRARIES "/qt%1/plugins").arg(qt);
}

/// Where Qt looks for plug-ins in as many folders whatever the plug-in.
QProcessEnvironment with(QProcessEnvironment environment, int qt, const QString &plugIn)
{
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), pluginFolder(qt));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), plugIn);
    return environment;
}

std::vector<StartedApplication::Other> othersIn(const QProcessEnvironment &environment, int qt)
{
    QProcessEnvironment without = with(environment, qt, QString());
    without.remove(QStringLiteral("QT_QPA_GENERIC_PLUGINS"));
    return {{"beside a start without any generic plug-in", without},
            {"beside a start with a plug-in that Qt does not find",
             with(environment, qt, QStringLiteral("unknown"))}};
}

/// Applications that do not print: a small one without a display, and one that people use.
std::vector<StartedApplication> startedApplications(const QString &display)
{
    const QString build = QStringLiteral(KV_BUILD_FOLDER);
    const auto offscreen = QProcessEnvironment::systemEnvironment();
    const auto onDisplay = environmentAt(display);
    std::vector<StartedApplication> applications;
    const auto add = [&](int qt, const QString &used) {
        const QString own = QStringLiteral("%1/bin/kvprint-bench-start-qt%2").arg(build).arg(qt);
        const QString leaver =
            QStringLiteral("%1/bin/libkvprint-bench-leave-qt%2.so").arg(build).arg(qt);
        const std::string qtName = " (Qt " + std::to_string(qt) + ")";
        const std::string usedName = QFileInfo(used).fileName().toStdString();
        for (const auto &[title, program, environment] :
             {std::tuple("A window without a display" + qtName, own, offscreen),
              {usedName + " at a display" + qtName, used, onDisplay}}) {
            applications.push_back({title, program, leaver,
                                    with(environment, qt, QStringLiteral("kvprintdialog")),
                                    othersIn(environment, qt), true});
        }
    };
    add(6, QStringLiteral(KV_QT6_TOOLS "/linguist"));
#ifdef KV_HAS_QT5
    add(5, QStringLiteral("/usr/bin/qpdfview"));
#endif
    return applications;
}

/// An application that shows print dialogs.
DialogApplication dialogApplication(int qt, const QString &display)
{
    return {"Qt " + std::to_string(qt),
            QStringLiteral(KV_BUILD_FOLDER "/bin/kvprint-bench-dialog-qt%1").arg(qt),
            pluginFolder(qt), environmentAt(display)};
}

/// What the extension costs applications that show print dialogs.
void compareDialogs(const QString &)
{
    const auto server = openDisplay();
    const QString display = server->name();
    DialogCosts costs;
    costs.measureOpenings(dialogApplication(6, display));
#ifdef KV_HAS_QT5
    costs.measureOpenings(dialogApplication(5, display));
#endif
    costs.measureMoments(dialogApplication(6, display));
    costs.print(std::cout);
}

void compareStarts(const std::vector<StartedApplication> &applications)
{
    for (const StartedApplication &application : applications) {
        std::cout << "\n";
        StartComparison(application, QStringLiteral(KV_BUILD_FOLDER)).run(std::cout);
    }
}

/// What the plug-in costs applications that do not print.
void compareQtStarts(const QString &)
{
    const auto server = openDisplay();
    compareStarts(startedApplications(server->name()));
}

#ifdef KV_HAS_GTK
/// What the extension costs applications with GTK, those that print and those that do not.
void compareGtk(const QString &)
{
    const auto server = openDisplay();
    GtkCosts costs(server->environment());
    for (const QString &gtk : QStringLiteral(KV_GTK_VERSIONS).split(QLatin1Char(' '))) {
        costs.measure(gtk);
    }
    costs.print(std::cout);
    const GtkSurroundings surroundings(server->environment());
    compareStarts(startedGtkApplications(surroundings));
}
#endif

void printLabels(const QString &)
{
    JobCosts().print(std::cout);
}

/// What can be measured alone.
struct Part
{
    const char *name;
    void (*measure)(const QString &home);
};

constexpr Part parts[] = {
    {"panel", measurePanel}, {"dialogs", compareDialogs}, {"starts", compareQtStarts},
#ifdef KV_HAS_GTK
    {"gtk", compareGtk},
#endif
    {"labels", printLabels},
};

/// The parts of these names, in the order of their names; all for no name.
std::vector<Part> partsOf(const std::vector<std::string> &names)
{
    std::vector<Part> wanted;
    for (const std::string &name : names) {
        const auto *const part =
            std::find_if(std::begin(parts), std::end(parts),
                         [&name](const Part &candidate) { return candidate.name == name; });
        if (part == std::end(parts)) {
            throw std::invalid_argument("there is nothing to measure that is called " + name);
        }
        wanted.push_back(*part);
    }
    return wanted.empty() ? std::vector<Part>(std::begin(parts), std::end(parts)) : wanted;
}
} // namespace

/// Measures the parts that the arguments name, or all.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // libcups looks the machine's own name up, which may be in no table: not for long.
    qputenv("RES_OPTIONS", "timeout:1 attempts:1");
    qInstallMessageHandler(dropOffscreenRemarks);
    Interruption::watch();
    try {
        const std::vector<Part> wanted = partsOf(initialise(argc, argv));
        const QTemporaryDir folder;
        const QString home = liveIn(folder);
        const QApplication application(argc, argv);
        for (const Part &part : wanted) {
            part.measure(home);
        }
    } catch (const std::exception &error) {
        if (Interruption::hasCome()) {
            return interruptedStatus;
        }
        std::cerr << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
