// SPDX-License-Identifier: Apache-2.0
#include "bench/BenchSite.h"
#include "bench/Clicks.h"
#include "bench/DialogCosts.h"
#include "bench/Drawings.h"
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

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <stdexcept>
#include <vector>

namespace {
/// As a shell tells that a program was interrupted.
constexpr int interruptedStatus = 128 + SIGINT;

void initialise(int argc, char **argv)
{
    // Whatever the machine is busy with meanwhile then meets all measurements alike.
    std::string interleaving = "--benchmark_enable_random_interleaving=true";
    std::vector<char *> arguments = {argv[0], interleaving.data()};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    int count = int(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        throw std::invalid_argument("unknown arguments");
    }
}

/// Gives the process a home folder, before its first call of libcups.
QString liveIn(const QTemporaryDir &home)
{
    const QByteArray path = QFile::encodeName(home.path());
    qputenv("HOME", path);
    qputenv("XDG_RUNTIME_DIR", path);
    return home.path();
}

void run(const QString &home)
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
        const QString plugins = pluginFolder(qt);
        const std::string qtName = " (Qt " + std::to_string(qt) + ")";
        applications.push_back(
            {"A window without a display" + qtName, own, leaver, plugins, offscreen});
        applications.push_back({QFileInfo(used).fileName().toStdString() + " at a display" + qtName,
                                used, leaver, plugins, onDisplay});
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
void compareDialogs(const QString &display)
{
    DialogCosts costs;
    costs.measureOpenings(dialogApplication(6, display));
#ifdef KV_HAS_QT5
    costs.measureOpenings(dialogApplication(5, display));
#endif
    costs.measureMoments(dialogApplication(6, display));
    costs.print(std::cout);
}

/// What the plug-in costs applications that do not print.
void compareStarts(const QString &display)
{
    for (const StartedApplication &application : startedApplications(display)) {
        std::cout << "\n";
        StartComparison(application, QStringLiteral(KV_BUILD_FOLDER)).run(std::cout);
    }
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // libcups looks the machine's own name up, which may be in no table: not for long.
    qputenv("RES_OPTIONS", "timeout:1 attempts:1");
    qInstallMessageHandler(dropOffscreenRemarks);
    Interruption::watch();
    try {
        initialise(argc, argv);
        const QTemporaryDir folder;
        const QString home = liveIn(folder);
        const QApplication application(argc, argv);
        run(home);
        DisplayServer server;
        if (const QString fault = server.open(); !fault.isEmpty()) {
            throw std::runtime_error(fault.toStdString());
        }
        compareDialogs(server.name());
        compareStarts(server.name());
        JobCosts().print(std::cout);
    } catch (const std::exception &error) {
        if (Interruption::hasCome()) {
            return interruptedStatus;
        }
        std::cerr << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
