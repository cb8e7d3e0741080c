// SPDX-License-Identifier: Apache-2.0
#include "demo/Demonstration.h"
#include "demo/Output.h"

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>
#include <cstring>

namespace {
constexpr char probeArgument[] = "--probe-display";

/// Whether a display answers. Another process asks, since Qt ends one that finds none.
bool hasDisplay(const char *program)
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") ||
        !(qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))) {
        return false;
    }
    QProcess probe;
    probe.start(QString::fromLocal8Bit(program), {QLatin1String(probeArgument)});
    return probe.waitForFinished() && probe.exitStatus() == QProcess::NormalExit &&
           probe.exitCode() == 0;
}

} // namespace

/// Usage: kvprint-demo RESULT-FOLDER
int main(int argc, char **argv)
{
    if (argc == 2 && std::strcmp(argv[1], probeArgument) == 0) {
        const QGuiApplication probe(argc, argv);
        return 0;
    }
    const bool isForUser = hasDisplay(argv[0]);
    const QTemporaryDir runtime;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    }
    // An interrupt ends kvprint, which gets it too; here the scheduler is yet to be stopped.
    std::signal(SIGINT, [](int) {});
    // The user's dialog is another process: here nothing is shown.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(dropOffscreenRemarks);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: kvprint-demo RESULT-FOLDER\n", stderr);
        return 2;
    }
    Demonstration demonstration(arguments.at(1));
    if (const auto error = demonstration.prepare()) {
        std::fprintf(stderr, "kvprint-demo: %s\n", error->toLocal8Bit().constData());
        return 1;
    }
    if (isForUser) {
        qunsetenv("QT_QPA_PLATFORM");
        return demonstration.runForUser() ? 0 : 1;
    }
    return demonstration.runAlone() ? 0 : 1;
}
