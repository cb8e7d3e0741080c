// SPDX-License-Identifier: Apache-2.0
#include "host/ProblemReporter.h"
#include "kvprint/BatchCommand.h"
#include "kvprint/CheckCommand.h"
#include "kvprint/CommandLine.h"
#include "kvprint/DirectCommand.h"
#include "kvprint/JobWait.h"
#include "kvprint/ListCommand.h"
#include "kvprint/PrintCommand.h"
#include "kvprint/ScriptRunner.h"
#include "kvprint/WindowlessPlatform.h"
#include "printcore/ProblemLine.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <cstdio>

namespace {
constexpr char platformVariable[] = "QT_QPA_PLATFORM";

void write(FILE *stream, const QString &text)
{
    std::fputs(text.toLocal8Bit().constData(), stream);
}

QStringList argumentsOf(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    return arguments;
}

/// Lets the application start without a display, so that it can say so itself. False when the
/// user has chosen a platform.
bool offerNoDisplay()
{
    if (qEnvironmentVariableIsSet(platformVariable)) {
        return false;
    }
    const QByteArray platforms =
        qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ? "wayland;xcb;offscreen" : "xcb;offscreen";
    qputenv(platformVariable, platforms);
    return true;
}

QString bundleFolder()
{
    return QDir::cleanPath(QDir(QCoreApplication::applicationDirPath())
                               .absoluteFilePath(QStringLiteral(KV_BUNDLES_BESIDE_PROGRAM)));
}

/// Shows Qt's own part of the dialog in the user's language too, where Qt's texts are installed.
void translateQt(QTranslator &texts)
{
    if (texts.load(QLocale(), QStringLiteral("qtbase"), QStringLiteral("_"),
                   QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&texts);
    }
}

/// Has desktops show the window with the name and icon of the desktop entry.
void useDesktopEntry()
{
    const QString entry = QStringLiteral(KV_APPLICATION_ID);
    QGuiApplication::setDesktopFileName(entry);
    QGuiApplication::setWindowIcon(QIcon::fromTheme(entry));
}

ExitStatus runScript(const CommandLine &line)
{
    ScriptRunner runner(
        {bundleFolder(), line.ppd, line.printer, std::chrono::seconds(line.timeout)});
    QString error;
    if (!runner.run(line.actionFile, &error)) {
        ProblemReporter().report(error);
        return ExitStatus::NotPrinted;
    }
    return runner.hasFailed() ? ExitStatus::LineFailed : ExitStatus::Printed;
}

/// Runs a command that prints, and waits for its job if the user wants it to.
template <typename Command>
ExitStatus runAndWait(const CommandLine &line)
{
    Command command(line, bundleFolder());
    const ExitStatus status = command.run();
    return line.wait && command.jobId() != 0 ? JobWait(line).run(command.jobId()) : status;
}

/// What an action that needs neither a display nor a user does with the panel's window.
WindowUse windowUseOf(CommandLine::Action action)
{
    const bool tellsLooks =
        action == CommandLine::Action::RunScript || action == CommandLine::Action::Screenshot;
    return tellsLooks ? WindowUse::Looks : WindowUse::ControlsAlone;
}

/// An action that needs neither a display nor a user.
ExitStatus runUnattended(const CommandLine &line)
{
    switch (line.action) {
    case CommandLine::Action::RunScript:
        return runScript(line);
    case CommandLine::Action::List:
        return ListCommand(line, bundleFolder()).run();
    case CommandLine::Action::PrintBatch:
        return BatchCommand(line, bundleFolder()).run();
    case CommandLine::Action::Check:
    case CommandLine::Action::CheckMap:
        return CheckCommand(line, bundleFolder()).run();
    default:
        return runAndWait<DirectCommand>(line);
    }
}
} // namespace

int main(int argc, char **argv)
{
    const CommandLine line =
        CommandLine::parse(argumentsOf(argc, argv), QStringLiteral(KV_VERSION));
    switch (line.action) {
    case CommandLine::Action::ShowHelp:
    case CommandLine::Action::ShowVersion:
        write(stdout, line.message);
        return 0;
    case CommandLine::Action::Refuse:
        write(stderr, QStringLiteral("kvprint: %1\n").arg(line.message));
        return int(ExitStatus::Usage);
    default:
        break;
    }
    if (line.action != CommandLine::Action::Print) {
        useWindowlessPlatform(windowUseOf(line.action));
        const QApplication application(argc, argv);
        return int(runUnattended(line));
    }

    const bool mayLackDisplay = offerNoDisplay();
    const QApplication application(argc, argv);
    useDesktopEntry();
    QTranslator textsOfQt;
    translateQt(textsOfQt);
    if (mayLackDisplay && QGuiApplication::platformName() == QLatin1String("offscreen")) {
        tellProblem(QStringLiteral("there is no display to open the dialog on"));
        return int(ExitStatus::NotPrinted);
    }
    return int(runAndWait<PrintCommand>(line));
}
