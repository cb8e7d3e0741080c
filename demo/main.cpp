#include "demo/Demonstration.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <cstdio>

namespace {
bool hasDisplay()
{
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
}
/// Writes what Qt has to say, but for what its platform without a display cannot do.
void dropOffscreenRemarks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.contains(QLatin1String("propagateSizeHints"))) {
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    }
}
} // namespace

/// Usage: kvprint-demo RESULT-FOLDER
int main(int argc, char **argv)
{
    const bool isForUser = hasDisplay() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
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
