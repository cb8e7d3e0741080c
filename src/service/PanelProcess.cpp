// SPDX-License-Identifier: Apache-2.0
#include "service/PanelProcess.h"

#include <QJsonDocument>

PanelProcess::PanelProcess(const QString &program, std::chrono::milliseconds limit)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // The finest pictures: callers get them at the scale that they ask for.
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    mProcess.setProcessEnvironment(environment);
    mProcess.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    mPatience.setSingleShot(true);
    mPatience.setInterval(limit);
    connect(&mPatience, &QTimer::timeout, this,
            [this] { fail(QStringLiteral("the panel does not answer")); });
    connect(&mProcess, &QProcess::readyReadStandardOutput, this, &PanelProcess::takeAnswers);
    connect(&mProcess, &QProcess::finished, this,
            [this] { fail(QStringLiteral("the panel's process has ended")); });
    connect(&mProcess, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            fail(QStringLiteral("%1: %2").arg(mProcess.program(), mProcess.errorString()));
        }
    });
    mProcess.start(program, {QStringLiteral("--script"), QStringLiteral("-")});
}

PanelProcess::~PanelProcess()
{
    mProcess.disconnect(this);
    mProcess.kill();
    mProcess.waitForFinished();
    fail(QStringLiteral("the conversation has ended"));
}

void PanelProcess::say(QList<QByteArray> lines, Answered answered)
{
    if (!mFailure.isNull()) {
        answered({}, mFailure);
        return;
    }
    mTalks.enqueue({std::move(lines), {}, std::move(answered)});
    sayNext();
}

void PanelProcess::sayNext()
{
    while (!mIsWaiting && !mTalks.isEmpty()) {
        if (!mTalks.head().lines.isEmpty()) {
            mIsWaiting = true;
            mPatience.start();
            mProcess.write(mTalks.head().lines.takeFirst() + '\n');
            return;
        }
        const Talk talk = mTalks.dequeue();
        talk.answered(talk.answers, QString());
    }
}

void PanelProcess::takeAnswers()
{
    while (mProcess.canReadLine()) {
        takeAnswer(QJsonDocument::fromJson(mProcess.readLine()).object());
    }
}

void PanelProcess::takeAnswer(const QJsonObject &answer)
{
    if (!std::exchange(mIsWaiting, false) || mTalks.isEmpty()) {
        return;
    }
    mPatience.stop();
    Talk &talk = mTalks.head();
    talk.answers.append(answer);
    if (!answer.value(QLatin1String("ok")).toBool()) {
        talk.lines.clear();
    }
    sayNext();
}

void PanelProcess::fail(const QString &failure)
{
    mPatience.stop();
    mFailure = failure;
    for (const QQueue<Talk> talks = std::exchange(mTalks, {}); const Talk &talk : talks) {
        talk.answered(talk.answers, failure);
    }
}

#include "moc_PanelProcess.cpp"
