// SPDX-License-Identifier: Apache-2.0
#include "ProgramTalk.h"

#include "ProgramRun.h"

#include <QDeadlineTimer>
#include <QJsonDocument>

namespace {
constexpr int answerTimeoutMs = 30'000;
} // namespace

ProgramTalk::ProgramTalk(QStringList arguments, const QStringList &variables)
{
    arguments << u"--script"_s << u"-"_s;
    mProcess.setProcessEnvironment(environmentWith(variables));
    mProcess.start(QStringLiteral(KV_PRINT_PROGRAM), arguments);
}

ProgramTalk::~ProgramTalk()
{
    if (mProcess.state() != QProcess::NotRunning) {
        mProcess.kill();
        mProcess.waitForFinished();
    }
}

QJsonObject ProgramTalk::ask(const QByteArray &line)
{
    mProcess.write(line + '\n');
    const QDeadlineTimer deadline(answerTimeoutMs);
    while (!mProcess.canReadLine() && mProcess.waitForReadyRead(int(deadline.remainingTime()))) {
    }
    return QJsonDocument::fromJson(mProcess.readLine()).object();
}

int ProgramTalk::end()
{
    mProcess.closeWriteChannel();
    const bool hasEnded = mProcess.waitForFinished(answerTimeoutMs);
    return hasEnded && mProcess.exitStatus() == QProcess::NormalExit ? mProcess.exitCode() : -1;
}
