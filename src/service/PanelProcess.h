// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QList>
#include <QProcess>
#include <QQueue>
#include <QTimer>

#include <chrono>
#include <functional>

/**
 * The process of one conversation: "kvprint --script -", which is told a line when it has answered
 * the one before.
 *
 * A panel that hangs or crashes takes nobody else's conversation with it.
 */
class PanelProcess : public QObject
{
    Q_OBJECT

public:
    /// What has been answered up to the first faulty line, and what went wrong besides: null unless
    /// the process has ended or does not answer, which ends the conversation.
    using Answered = std::function<void(const QList<QJsonObject> &answers, const QString &failure)>;

    /// @param program the path of kvprint. @param limit how long a line may take.
    PanelProcess(const QString &program, std::chrono::milliseconds limit);
    /// Kills the process. Whoever waits for an answer gets none.
    ~PanelProcess() override;

    /// Says these lines after those that have been said before, up to the first that is faulty.
    void say(QList<QByteArray> lines, Answered answered);

    /// How many say() have not been answered yet.
    int backlog() const { return int(mTalks.size()); }

private:
    struct Talk
    {
        QList<QByteArray> lines;
        QList<QJsonObject> answers;
        Answered answered;
    };

    void sayNext();
    void takeAnswers();
    void takeAnswer(const QJsonObject &answer);
    void fail(const QString &failure);

    QProcess mProcess;
    QTimer mPatience;
    QQueue<Talk> mTalks;
    bool mIsWaiting = false;
    /// Why nothing is answered any more; null while it is.
    QString mFailure;
};
