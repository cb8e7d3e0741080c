// SPDX-License-Identifier: Apache-2.0
#include "dialog/DialogSettings.h"

#include "host/ProblemReporter.h"
#include "printcore/CheckedFile.h"
#include "printcore/UTF8.h"

#include <QHash>
#include <QStandardPaths>
#include <QStringList>

struct DialogSettings::Line
{
    QString file;
    QString value;
};

namespace {
constexpr qint64 greatestSize = 65'536;

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

bool isComment(const QString &line)
{
    return line.isEmpty() || line.startsWith(QLatin1Char(';')) || line.startsWith(QLatin1Char('#'));
}

/// What stands behind a key, without a comment and without the quotes around it.
QString settingOf(const QString &text)
{
    const QString value = text.trimmed();
    const QLatin1Char quote('"');
    if (value.size() > 1 && value.startsWith(quote) && value.endsWith(quote)) {
        return value.mid(1, value.size() - 2);
    }
    return value.section(QLatin1Char(';'), 0, 0).trimmed();
}

/// Reads the section "Applications". @p faultyLine is set to the number of the first line that is
/// neither a section nor a key and a value, if there is one.
QHash<QString, QString> readApplications(const QString &text, int *faultyLine)
{
    QHash<QString, QString> values;
    bool isWanted = false;
    int number = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &untrimmed : lines) {
        const QString line = untrimmed.trimmed();
        const auto equals = line.indexOf(QLatin1Char('='));
        ++number;
        if (line.startsWith(QLatin1Char('[')) && line.endsWith(QLatin1Char(']'))) {
            isWanted = line == QLatin1String("[Applications]");
        } else if (equals > 0 && isWanted && !isComment(line)) {
            values.insert(line.left(equals).trimmed(), settingOf(line.mid(equals + 1)));
        } else if (equals <= 0 && !isComment(line) && *faultyLine == 0) {
            *faultyLine = number;
        }
    }
    return values;
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
    CheckedFile opened = CheckedFile::ofAnybody(file);
    const QByteArray bytes = opened.read(greatestSize);
    if (opened.isMissing()) {
        return;
    }
    if (!opened.fault().isNull()) {
        mReporter.report(QStringLiteral("%1 %2").arg(file, opened.fault()));
        return;
    }
    if (textOfUTF8(bytes).isNull()) {
        mReporter.report(QStringLiteral("%1: it is no text in UTF-8").arg(file));
    }
    int faultyLine = 0;
    const QHash<QString, QString> values = readApplications(QString::fromUtf8(bytes), &faultyLine);
    if (faultyLine != 0) {
        mReporter.report(QStringLiteral("%1: line %2 is neither a section, nor a key and a value")
                             .arg(file)
                             .arg(faultyLine));
    }
    for (auto value = values.begin(); value != values.end(); ++value) {
        if (!lines.contains(value.key())) {
            lines.insert(value.key(), {file, value.value()});
        }
    }
}
