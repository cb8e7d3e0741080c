// SPDX-License-Identifier: Apache-2.0
#include "DisplayServer.h"

#include "Waiting.h"

DisplayServer::DisplayServer(const QSize &screen)
    : mScreen(screen)
{
}

QString DisplayServer::open()
{
    const QString error = startServer();
    return error.isEmpty() ? startWindowManager() : error;
}

QString DisplayServer::startServer()
{
    mServer.setStandardErrorFile(mHome.filePath(QStringLiteral("server.log")));
    // It writes the number of a display that was free to its standard output.
    mServer.start(QStringLiteral("Xvfb"),
                  {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                   QStringLiteral("0"),
                   QStringLiteral("%1x%2x24").arg(mScreen.width()).arg(mScreen.height()),
                   QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    const bool isReady = waitFor([this] {
        return mServer.state() == QProcess::NotRunning || mServer.canReadLine() ||
               mServer.waitForReadyRead(0);
    });
    const QByteArray number = mServer.readLine().trimmed();
    if (!isReady || number.isEmpty()) {
        return QStringLiteral("Xvfb: %1").arg(mServer.errorString());
    }
    mName = QLatin1Char(':') + QString::fromLatin1(number);
    return {};
}

QString DisplayServer::startWindowManager()
{
    mWindowManager.setProcessEnvironment(environment());
    mWindowManager.setProcessChannelMode(QProcess::MergedChannels);
    mWindowManager.setStandardOutputFile(mHome.filePath(QStringLiteral("manager.log")));
    mWindowManager.start(QStringLiteral("openbox"), {});
    const bool isReady = mWindowManager.waitForStarted() &&
                         waitFor([this] { return command({QStringLiteral("get_num_desktops")}); });
    return isReady ? QString() : QStringLiteral("openbox: %1").arg(mWindowManager.errorString());
}

QProcessEnvironment DisplayServer::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), mName);
    for (const char *folder : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        environment.insert(QLatin1String(folder), mHome.path());
    }
    return environment;
}

bool DisplayServer::command(const QStringList &arguments) const
{
    QProcess xdotool;
    xdotool.setProcessEnvironment(environment());
    xdotool.setStandardOutputFile(QProcess::nullDevice());
    xdotool.setStandardErrorFile(QProcess::nullDevice());
    xdotool.start(QStringLiteral("xdotool"), arguments);
    return xdotool.waitForFinished(kPatienceMs) && xdotool.exitStatus() == QProcess::NormalExit &&
           xdotool.exitCode() == 0;
}
