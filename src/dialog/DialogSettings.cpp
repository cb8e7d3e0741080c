#include "dialog/DialogSettings.h"

#include "host/ProblemReporter.h"
#include "printcore/FileAccess.h"

#include <QHash>
#include <QSettings>
#include <QStandardPaths>

struct DialogSettings::Line
{
    QString file;
    QString value;
};

namespace {
/// The files of settings, whether or not they are there, the most important first.
QStringList settingsFiles()
{
    QStringList files = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    for (QString &file : files) {
        file += QStringLiteral("/kvprint/dialog.conf");
    }
    files.removeDuplicates();
    return files;
}
} // namespace

DialogSettings::DialogSettings(ProblemReporter &reporter)
    : mReporter(reporter)
{
}

bool DialogSettings::isOn(const QString &program) const
{
    QHash<QString, Line> lines;
    const QStringList files = settingsFiles();
    for (const QString &file : files) {
        read(file, lines);
    }
    const QString key = lines.contains(program) ? program : QStringLiteral("*");
    const Line line = lines.value(key, {QString(), QStringLiteral("on")});
    if (line.value != QLatin1String("on") && line.value != QLatin1String("off")) {
        mReporter.report(
            QStringLiteral("%1: \"%2\" is neither \"on\" nor \"off\"").arg(line.file, key));
    }
    return line.value != QLatin1String("off");
}

void DialogSettings::read(const QString &file, QHash<QString, Line> &lines) const
{
    if (isMissing(file)) {
        return;
    }
    const QString fault = accessFault(file);
    if (!fault.isNull()) {
        mReporter.report(QStringLiteral("%1 %2").arg(file, fault));
        return;
    }
    QSettings settings(file, QSettings::IniFormat);
    if (settings.status() != QSettings::NoError) {
        mReporter.report(
            QStringLiteral("%1: not every line is a section, or a key and a value").arg(file));
    }
    settings.beginGroup(QStringLiteral("Applications"));
    const QStringList keys = settings.childKeys();
    for (const QString &key : keys) {
        if (!lines.contains(key)) {
            lines.insert(key, {file, settings.value(key).toString()});
        }
    }
}
