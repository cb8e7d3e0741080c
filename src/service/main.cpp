// SPDX-License-Identifier: Apache-2.0
#include "printcore/ProblemLine.h"
#include "service/PanelService.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDir>

#include <cstdlib>

namespace {
/// A whole number of milliseconds that an option names, else what it is now.
void readMilliseconds(const QCommandLineParser &line, const QString &option,
                      std::chrono::milliseconds *time)
{
    bool isNumber = false;
    const int number = line.value(option).toInt(&isNumber);
    if (isNumber && number > 0) {
        *time = std::chrono::milliseconds(number);
    } else if (line.isSet(option)) {
        tellProblem(QStringLiteral("--%1 %2: not a number of milliseconds")
                        .arg(option, line.value(option)));
    }
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(KV_VERSION));
    QCommandLineParser line;
    line.setApplicationDescription(
        QStringLiteral("The panel service of kvprint, which the session bus starts."));
    line.addHelpOption();
    line.addVersionOption();
    const QString idle = QStringLiteral("idle");
    const QString answer = QStringLiteral("answer");
    const QString milliseconds = QStringLiteral("MILLISECONDS");
    line.addOption(
        {idle, QStringLiteral("Ends after this time without a conversation."), milliseconds});
    line.addOption(
        {answer, QStringLiteral("Gives a panel up that takes longer to answer."), milliseconds});
    line.process(application);

    PanelService::Limits limits;
    readMilliseconds(line, idle, &limits.idle);
    readMilliseconds(line, answer, &limits.answer);
    const QDir folder(QCoreApplication::applicationDirPath());
    PanelService service(
        QDir::cleanPath(folder.absoluteFilePath(QStringLiteral(KV_PROGRAM_FROM_SERVICE))), limits);
    QObject::connect(&service, &PanelService::idle, &application, &QCoreApplication::quit);
    QDBusConnection::sessionBus().connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                                          QStringLiteral("org.freedesktop.DBus.Local"),
                                          QStringLiteral("Disconnected"), &application,
                                          SLOT(quit()));
    if (const QString error = service.offer(); !error.isNull()) {
        tellProblem(error);
        return EXIT_FAILURE;
    }
    return QCoreApplication::exec();
}
