#include "host/PrintCommand.h"

#include <QApplication>
#include <QDir>

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
} // namespace

int main(int argc, char **argv)
{
    CommandLine line = CommandLine::parse(argumentsOf(argc, argv), QStringLiteral(KV_VERSION));
    switch (line.action) {
    case CommandLine::Action::ShowHelp:
    case CommandLine::Action::ShowVersion:
        write(stdout, line.message);
        return 0;
    case CommandLine::Action::Refuse:
        write(stderr, QStringLiteral("kvprint: %1\n").arg(line.message));
        return int(ExitStatus::Usage);
    case CommandLine::Action::Print:
        break;
    }

    const bool mayLackDisplay = offerNoDisplay();
    const QApplication application(argc, argv);
    if (mayLackDisplay && QGuiApplication::platformName() == QLatin1String("offscreen")) {
        write(stderr, QStringLiteral("kvprint: there is no display to open the dialog on\n"));
        return int(ExitStatus::NotPrinted);
    }
    const QString bundles = QDir(QCoreApplication::applicationDirPath())
                                .absoluteFilePath(QStringLiteral(KV_BUNDLE_FOLDER));
    return int(PrintCommand(std::move(line), QDir::cleanPath(bundles)).run());
}
