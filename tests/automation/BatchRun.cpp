// SPDX-License-Identifier: Apache-2.0
#include "BatchRun.h"

#include <QJsonDocument>
#include <QTest>

QByteArray batchLine(const QString &file, QJsonObject members)
{
    members.insert(u"file"_s, file);
    return QJsonDocument(members).toJson(QJsonDocument::Compact) + '\n';
}

BatchRun::BatchRun(const QString &batch, const QStringList &arguments, const QStringList &variables)
{
    mProcess.setProcessEnvironment(environmentWith(variables));
    mProcess.start(QStringLiteral(KV_PRINT_PROGRAM), QStringList{u"--batch"_s, batch} + arguments);
}

BatchRun::~BatchRun()
{
    kill();
}

int BatchRun::end(int limitMs)
{
    mProcess.closeWriteChannel();
    const bool hasEnded =
        QTest::qWaitFor([this] { return mProcess.state() == QProcess::NotRunning; }, limitMs);
    return hasEnded && mProcess.exitStatus() == QProcess::NormalExit ? mProcess.exitCode() : -1;
}

void BatchRun::kill()
{
    if (mProcess.state() != QProcess::NotRunning) {
        mProcess.kill();
        mProcess.waitForFinished();
    }
}

QMap<int, QJsonObject> BatchRun::answers()
{
    mOutput += mProcess.readAllStandardOutput();
    QMap<int, QJsonObject> answers;
    for (const QByteArray &line : mOutput.left(mOutput.lastIndexOf('\n') + 1).split('\n')) {
        if (!line.isEmpty()) {
            const QJsonObject answer = QJsonDocument::fromJson(line).object();
            answers.insert(answer.value(u"line"_s).toInt(), answer);
        }
    }
    return answers;
}

int BatchRun::answerCount()
{
    mOutput += mProcess.readAllStandardOutput();
    return int(mOutput.count('\n'));
}

QList<int> BatchRun::jobs()
{
    QList<int> jobs;
    const auto all = answers();
    for (const QJsonObject &answer : all) {
        if (answer.contains(u"job"_s)) {
            jobs.append(answer.value(u"job"_s).toInt());
        }
    }
    return jobs;
}
