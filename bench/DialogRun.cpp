// SPDX-License-Identifier: Apache-2.0
#include "bench/DialogRun.h"

#include <stdexcept>

namespace {
constexpr int longestDeedMs = 60'000;
} // namespace

DialogRun::DialogRun(const DialogApplication &application, const QString &printer, bool isExtended,
                     std::chrono::milliseconds patience)
{
    QProcessEnvironment environment = application.environment;
    environment.insert(QStringLiteral("QT_PLUGIN_PATH"), application.pluginFolder);
    environment.insert(QStringLiteral("QT_QPA_GENERIC_PLUGINS"),
                       isExtended ? QStringLiteral("kvprintdialog") : QStringLiteral(""));
    mProcess.setProcessEnvironment(environment);
    mProcess.setStandardErrorFile(QProcess::nullDevice());
    mProcess.start(application.program, {printer, QString::number(patience.count())});
}

DialogRun::~DialogRun()
{
    mProcess.closeWriteChannel();
    if (!mProcess.waitForFinished()) {
        mProcess.kill();
        mProcess.waitForFinished();
    }
}

DialogRun::Times DialogRun::time(const char *deed)
{
    mProcess.write(QByteArray(deed) + '\n');
    while (!mProcess.canReadLine()) {
        if (!mProcess.waitForReadyRead(longestDeedMs)) {
            throw std::runtime_error(mProcess.program().toStdString() + " does not \"" + deed +
                                     "\": " + mProcess.errorString().toStdString());
        }
    }
    const QList<QByteArray> times = mProcess.readLine().simplified().split(' ');
    return {times.first().toDouble(), times.last().toDouble()};
}
