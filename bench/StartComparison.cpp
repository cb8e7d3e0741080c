// SPDX-License-Identifier: Apache-2.0
#include "bench/StartComparison.h"

#include "bench/ChildProcesses.h"
#include "bench/PairedTimes.h"

#include <QFileInfo>
#include <QProcess>

#include <chrono>
#include <iomanip>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace {
constexpr int pairs = 60;
constexpr int applicationTimeoutMs = 30'000;

/// What the application writes until it is left.
QByteArray outputOf(const StartedApplication &application, QProcessEnvironment environment)
{
    const QString &program = application.program;
    QProcess process;
    environment.insert(QStringLiteral("LD_PRELOAD"), application.leaver);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::SeparateChannels);
    process.start(program, QStringList(), QIODevice::ReadOnly);
    if (!process.waitForFinished(applicationTimeoutMs) ||
        process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        throw std::runtime_error(program.toStdString() +
                                 " failed: " + process.readAllStandardError().toStdString());
    }
    return process.readAllStandardOutput();
}

struct Times
{
    double wall;
    double processor;
};

Times timesOf(const StartedApplication &application, const QProcessEnvironment &environment)
{
    const double processorBefore = processorSecondsOfChildren();
    const auto before = std::chrono::steady_clock::now();
    outputOf(application, environment);
    const std::chrono::duration<double> wall = std::chrono::steady_clock::now() - before;
    return {wall.count(), processorSecondsOfChildren() - processorBefore};
}

std::string text(double seconds)
{
    std::ostringstream stream;
    stream << std::fixed << std::setprecision(2) << seconds * 1e3 << " ms";
    return stream.str();
}

std::string sentence(const char *kind, const PairedTimes &times)
{
    const PairedTimes::Difference difference = times.difference();
    return std::string("  ") + kind + ": " + text(times.medianOfFirst()) + " without, " +
           text(times.medianOfSecond()) + " with; difference " + text(difference.median) +
           ", with 95 % between " + text(difference.least) + " and " + text(difference.most) +
           (difference.isMeasurable() ? ": measurable\n" : ": not measurable\n");
}

/// Starts with the extension beside others.
struct Beside
{
    const StartedApplication::Other &other;
    PairedTimes wall = {};
    PairedTimes processor = {};

    /// Starts both; which comes first is for the caller to alternate.
    void measurePair(const StartedApplication &application, bool isOtherFirst)
    {
        const auto &others = other.environment;
        const auto &ours = application.extended;
        const Times early = timesOf(application, isOtherFirst ? others : ours);
        const Times late = timesOf(application, isOtherFirst ? ours : others);
        const auto [first, second] = isOtherFirst ? std::pair(early, late) : std::pair(late, early);
        wall.add(first.wall, second.wall);
        processor.add(first.processor, second.processor);
    }
};
} // namespace

StartComparison::StartComparison(StartedApplication application, QString buildFolder)
    : mApplication(std::move(application))
    , mBuildFolder(std::move(buildFolder))
{
}

void StartComparison::run(std::ostream &stream) const
{
    const QStringList mapped = mappedLibraries(mApplication.extended);
    if (!mappedLibraries(mApplication.others.front().environment).isEmpty() ||
        mapped.isEmpty() == mApplication.mapsExtension) {
        throw std::runtime_error(mApplication.title + " maps other files of ours than it should");
    }
    std::vector<Beside> comparisons;
    for (const StartedApplication::Other &other : mApplication.others) {
        comparisons.push_back({other});
    }
    for (int i = 0; i < pairs; ++i) {
        for (Beside &beside : comparisons) {
            beside.measurePair(mApplication, i % 2 == 0);
        }
    }
    stream << mApplication.title << ", " << pairs << " pairs of starts each\n  mapped of ours: "
           << (mapped.isEmpty() ? "nothing" : mapped.join(QStringLiteral(", ")).toStdString())
           << "\n";
    for (const Beside &beside : comparisons) {
        stream << "  " << beside.other.title << "\n"
               << sentence("  time", beside.wall) << sentence("  processor", beside.processor);
    }
}

QStringList StartComparison::mappedLibraries(QProcessEnvironment environment) const
{
    environment.insert(QStringLiteral("KV_BENCH_MAPS"), QStringLiteral("1"));
    const QStringList known = {mApplication.program, mApplication.leaver};
    QStringList libraries;
    for (const QByteArray &line : outputOf(mApplication, environment).split('\n')) {
        const QString path = QString::fromLocal8Bit(line.mid(line.indexOf('/')));
        if (line.contains('/') && path.startsWith(mBuildFolder) && !known.contains(path)) {
            libraries.append(QStringLiteral("%1 (%2 KB)")
                                 .arg(QFileInfo(path).fileName())
                                 .arg(QFileInfo(path).size() / 1024));
        }
    }
    libraries.removeDuplicates();
    return libraries;
}
