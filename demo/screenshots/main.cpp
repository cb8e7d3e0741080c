#include "demo/screenshots/Campaign.h"
#include "demo/screenshots/GuidePictures.h"
#include "demo/screenshots/Look.h"
#include "demo/screenshots/Scripts.h"

#include <QApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QTranslator>

#include <cstdio>

namespace {
/// Writes what Qt has to say, but for what its platform without a display cannot do.
void dropOffscreenRemarks(QtMsgType, const QMessageLogContext &, const QString &message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support "))) {
        std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
    }
}

void say(const QString &line)
{
    std::fprintf(stdout, "%s\n", line.toLocal8Bit().constData());
    std::fflush(stdout);
}

/// Translates Qt's part of the dialog where its tables are installed, and sets the direction.
void useLanguage(const QString &language, QTranslator &translator)
{
    if (translator.load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&translator);
    }
    QApplication::setLayoutDirection(QLocale(language).textDirection());
}

int runCampaign(const QString &sheetFolder, const QString &guideFolder)
{
    for (const QString &style : Look::missingStyles()) {
        say(QStringLiteral("The style %1 is left out: this Qt does not have it.").arg(style));
    }
    for (const QString &script : scriptsWithoutFont(Campaign::languages())) {
        say(QStringLiteral("No installed font has the script %1: its texts are boxes.")
                .arg(script));
    }
    const int count = Campaign(sheetFolder, guideFolder).run();
    if (count < 0) {
        return 1;
    }
    say(QStringLiteral("%1 sheets are in %2, and the guide's pictures in %3.")
            .arg(count)
            .arg(sheetFolder, guideFolder));
    return 0;
}
} // namespace

/// Usage: kvprint-screenshots SHEET-FOLDER GUIDE-FOLDER. Further forms are for its own use.
int main(int argc, char **argv)
{
    const QTemporaryDir runtime;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    }
    // A process of the campaign's has been given its screen.
    if (argc < 2 || argv[1][0] != '-') {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qInstallMessageHandler(dropOffscreenRemarks);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    QTranslator translator;
    if (arguments.value(0) == QLatin1String("--sheets") && arguments.size() == 4) {
        useLanguage(arguments.at(2), translator);
        return Campaign::makeSheets(arguments.at(1), arguments.at(2), arguments.at(3)) < 0;
    }
    if (arguments.value(0) == QLatin1String("--guide") && arguments.size() == 2) {
        return GuidePictures(arguments.at(1)).make() < 0;
    }
    if (arguments.size() != 2) {
        std::fputs("Usage: kvprint-screenshots SHEET-FOLDER GUIDE-FOLDER\n", stderr);
        return 2;
    }
    return runCampaign(arguments.at(0), arguments.at(1));
}
