// SPDX-License-Identifier: Apache-2.0
#include "DialogOpener.h"

#include <QFile>
#include <QTest>

namespace {
constexpr int timeoutMs = 60'000;
} // namespace

void addQtVersionRows()
{
    QTest::addColumn<QString>("qt");
    for (const QString &qt : QStringLiteral(KV_QT_VERSIONS).split(u',')) {
        QTest::newRow(qPrintable(QStringLiteral("Qt ") + qt)) << qt;
    }
}

DialogOpener::DialogOpener(const QString &qt, const QString &userFolder,
                           const QString &systemFolder, const QString &libraries)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), userFolder);
    environment.insert(QStringLiteral("XDG_CONFIG_DIRS"), systemFolder);
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"),
                       libraries + QStringLiteral("/qt%1/plugins").arg(qt));
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"), QStringLiteral("kvprintdialog"));
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
    return answer(QStringLiteral("tabs"), printer);
}

QStringList DialogOpener::answer(const QString &way, const QString &printer)
{
    mProcess.write(QStringLiteral("%1|%2\n").arg(way, printer).toUtf8());
    while (!mProcess.canReadLine() && mProcess.waitForReadyRead(timeoutMs)) {
    }
    const QString line = QString::fromUtf8(mProcess.readLine()).trimmed();
    return line.split(QLatin1Char('|'), Qt::SkipEmptyParts);
}

bool DialogOpener::hasLoaded(const QString &library) const
{
    return mappedFiles().contains('/' + QFile::encodeName(library) + '\n');
}

bool DialogOpener::hasLoadedFrom(const QString &folder) const
{
    return mappedFiles().contains(' ' + QFile::encodeName(folder) + '/');
}

QByteArray DialogOpener::mappedFiles() const
{
    QFile maps(QStringLiteral("/proc/%1/maps").arg(mProcess.processId()));
    return maps.open(QIODevice::ReadOnly) ? maps.readAll() : QByteArray();
}

QString DialogOpener::finish()
{
    mProcess.setReadChannel(QProcess::StandardError);
    mProcess.closeWriteChannel();
    if (!mProcess.waitForFinished(timeoutMs) || mProcess.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    QString ours = QStringLiteral("");
    while (!mProcess.atEnd()) {
        const QByteArray line = mProcess.readLine();
        if (line.startsWith("kvprint: ")) {
            ours += QString::fromLocal8Bit(line);
        }
    }
    return ours;
}
