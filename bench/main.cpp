#include "bench/BenchSite.h"
#include "bench/Clicks.h"
#include "bench/Drawings.h"
#include "bench/Interruption.h"
#include "bench/MedianReporter.h"
#include "bench/Openings.h"
#include "bench/RatioTable.h"
#include "bench/StartComparison.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace {
/// As a shell tells that a program was interrupted.
constexpr int interruptedStatus = 128 + SIGINT;

QtMessageHandler formerHandler = nullptr;

/// Leaves out what the platform without a display says of each window.
void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support"))) {
        formerHandler(type, context, message);
    }
}

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
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    RatioTable(reporter.medians())
        .print(std::cout,
               {Openings::comparisons(), Clicks::comparisons(), Drawings::comparisons()});
}

/// What the plug-in costs applications that do not print, of each Qt that it was built for.
void compareStarts()
{
    const QString build = QStringLiteral(KV_BUILD_FOLDER);
    for (const int qt : {6, 5}) {
        const QString program =
            QStringLiteral("%1/bin/kvprint-bench-start-qt%2").arg(build).arg(qt);
        const QString plugins = QStringLiteral(KV_LIBRARIES "/qt%1/plugins").arg(qt);
        if (QFile::exists(program)) {
            std::cout << "\n";
            StartComparison(program, plugins, build)
                .run(std::cout,
                     "An application of Qt " + std::to_string(qt) + " that shows no print dialog");
        }
    }
}
} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // libcups looks the machine's own name up, which may be in no table: not for long.
    qputenv("RES_OPTIONS", "timeout:1 attempts:1");
    formerHandler = qInstallMessageHandler(handleMessage);
    Interruption::watch();
    try {
        initialise(argc, argv);
        const QTemporaryDir folder;
        const QString home = liveIn(folder);
        const QApplication application(argc, argv);
        run(home);
        compareStarts();
    } catch (const std::exception &error) {
        if (Interruption::hasCome()) {
            return interruptedStatus;
        }
        std::cerr << error.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
