// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/PhotoProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {
constexpr int timeoutMs = 600'000;
/// Room for the widest dialog with its menu open, before it is scaled.
constexpr int unscaledScreenSize = 1400;
} // namespace

PhotoProcess::PhotoProcess(Task task, const QString &folder)
    : mTask(std::move(task))
    , mFolder(folder)
{
    mProcess.setProcessChannelMode(QProcess::ForwardedChannels);
}

int PhotoProcess::screenSize() const
{
    return int(unscaledScreenSize * mTask.scale.toDouble());
}

bool PhotoProcess::writeScreen(const QString &path) const
{
    const QJsonObject screen{{QStringLiteral("name"), QStringLiteral("screen")},
                             {QStringLiteral("x"), 0},
                             {QStringLiteral("y"), 0},
                             {QStringLiteral("width"), screenSize()},
                             {QStringLiteral("height"), screenSize()},
                             {QStringLiteral("logicalDpi"), 96},
                             {QStringLiteral("logicalBaseDpi"), 96},
                             {QStringLiteral("dpr"), 1.0}};
    const QJsonObject screens{{QStringLiteral("screens"), QJsonArray{screen}}};
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(QJsonDocument(screens).toJson()) > 0;
}

QString PhotoProcess::openScreen(QProcessEnvironment &environment)
{
    if (mTask.needsDisplay) {
        mDisplay.emplace(QSize(screenSize(), screenSize()));
        QString error = mDisplay->open();
        environment = mDisplay->environment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORMTHEME"), QStringLiteral("generic"));
        environment.insert(QStringLiteral("QT_FONT_DPI"), QStringLiteral("96"));
        return error;
    }
    const QString file = QDir(mFolder).filePath(mTask.scale + QStringLiteral(".json"));
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"),
                       QStringLiteral("offscreen:configfile=") + file);
    return QFile::exists(file) || writeScreen(file) ? QString() : file;
}

QString PhotoProcess::start()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    QString error = openScreen(environment);
    if (!error.isEmpty()) {
        return error;
    }
    environment.remove(QStringLiteral("LC_ALL"));
    environment.insert(QStringLiteral("LC_CTYPE"), QStringLiteral("C.UTF-8"));
    environment.insert(QStringLiteral("LANG"), mTask.language + QStringLiteral(".UTF-8"));
    environment.insert(QStringLiteral("LANGUAGE"), mTask.language);
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), mTask.scale);
    mProcess.setProcessEnvironment(environment);
    mProcess.start(mTask.program, mTask.arguments);
    return mProcess.waitForStarted() ? QString() : mProcess.errorString();
}

bool PhotoProcess::finish()
{
    return (mProcess.state() == QProcess::NotRunning || mProcess.waitForFinished(timeoutMs)) &&
           mProcess.exitStatus() == QProcess::NormalExit && mProcess.exitCode() == 0;
}
