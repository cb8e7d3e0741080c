// SPDX-License-Identifier: Apache-2.0
#include "DialogOpener.h"

#include <QFile>
#include <QTest>

#include <algorithm>

namespace {
constexpr int timeoutMs = 60'000;
} // namespace

void addQtVersionRows()
{
    const TestTable<QString> table("qt");
    for (const QString &qt : QStringLiteral(KV_QT_VERSIONS).split(u',')) {
        table.add(qPrintable(u"Qt "_s + qt), qt);
    }
}

DialogOpener::DialogOpener(const QString &qt, const QString &userFolder,
                           const QString &systemFolder, const QString &libraries)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"XDG_CONFIG_HOME"_s, userFolder);
    environment.insert(u"XDG_CONFIG_DIRS"_s, systemFolder);
    environment.insert(u"QT_PLUGIN_PATH"_s, libraries + u"/qt%1/plugins"_s.arg(qt));
    environment.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"kvprintdialog"_s);
    mProcess.setProcessEnvironment(environment);
    mProcess.setWorkingDirectory(userFolder);
    mProcess.start(QStringLiteral(KV_DIALOG_OPENER).arg(qt), QStringList());
}

DialogOpener::~DialogOpener()
{
    mProcess.kill();
    mProcess.waitForFinished();
}

QStringList DialogOpener::tabs(const QString &printer)
{
    return answer(u"tabs"_s, printer);
}

QStringList DialogOpener::answer(const QString &way, const QString &printer)
{
    mProcess.write(u"%1|%2\n"_s.arg(way, printer).toUtf8());
    while (!mProcess.canReadLine() && mProcess.waitForReadyRead(timeoutMs)) {
    }
    const QString line = QString::fromUtf8(mProcess.readLine()).trimmed();
    return line.split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

bool DialogOpener::hasLoaded(const QString &library) const
{
    // Qt maps a library before it loads it, too, to read what it is, but not to be run.
    const QList<QByteArray> lines = mappedFiles().split('\n');
    return std::any_of(lines.begin(), lines.end(),
                       [ending = '/' + QFile::encodeName(library)](const QByteArray &line) {
                           return line.contains(" r-xp ") && line.endsWith(ending);
                       });
}

bool DialogOpener::hasLoadedFrom(const QString &folder) const
{
    return mappedFiles().contains(' ' + QFile::encodeName(folder) + '/');
}

QByteArray DialogOpener::mappedFiles() const
{
    QFile maps(u"/proc/%1/maps"_s.arg(mProcess.processId()));
    return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
}

QString DialogOpener::finish()
{
    mProcess.setReadChannel(QProcess::StandardError);
    mProcess.closeWriteChannel();
    if (!mProcess.waitForFinished(timeoutMs) || mProcess.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    QString ours = u""_s;
    while (!mProcess.atEnd()) {
        const QByteArray line = mProcess.readLine();
        if (line.startsWith("kvprint: ")) {
            ours += QString::fromLocal8Bit(line);
        }
    }
    return ours;
}
