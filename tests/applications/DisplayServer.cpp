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
    mServer.setStandardErrorFile(mHome.filePath(u"server.log"_s));
    // It writes the number of a display that was free to its standard output.
    mServer.start(u"Xvfb"_s, {u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s,
                              u"%1x%2x24"_s.arg(mScreen.width()).arg(mScreen.height()),
                              u"-nolisten"_s, u"tcp"_s, u"-noreset"_s});
    const bool isReady = waitFor([this] {
        return mServer.state() == QProcess::NotRunning || mServer.canReadLine() ||
               mServer.waitForReadyRead(0);
    });
    const QByteArray number = mServer.readLine().trimmed();
    if (!isReady || number.isEmpty()) {
        return u"Xvfb: %1"_s.arg(mServer.errorString());
    }
    mName = QLatin1Char(':') + QString::fromLatin1(number);
    return {};
}

QString DisplayServer::startWindowManager()
{
    mWindowManager.setProcessEnvironment(environment());
    mWindowManager.setProcessChannelMode(QProcess::MergedChannels);
    mWindowManager.setStandardOutputFile(mHome.filePath(u"manager.log"_s));
    mWindowManager.start(u"openbox"_s, {});
    const bool isReady = mWindowManager.waitForStarted() &&
                         waitFor([this] { return command({u"get_num_desktops"_s}); });
    return isReady ? QString() : u"openbox: %1"_s.arg(mWindowManager.errorString());
}

QProcessEnvironment DisplayServer::environment() const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"DISPLAY"_s, mName);
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
    xdotool.start(u"xdotool"_s, arguments);
    return xdotool.waitForFinished(kPatienceMs) && xdotool.exitStatus() == QProcess::NormalExit &&
           xdotool.exitCode() == 0;
}
