// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/DialogSettings.h"
#include "host/ProblemReporter.h"

#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QHash>
#include <QTimer>
#include <QVariantMap>

#include <chrono>
#include <memory>

class PanelProcess;

/**
 * Conversations with panels for the programs on the session bus, which docs/automation.md
 * describes.
 *
 * A conversation belongs to the program that has opened it, and ends with it.
 */
class PanelService : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "example.korvane.KvPrint1.Panels")

public:
    /// What the service allows.
    struct Limits
    {
        /// How long a panel may take for a request.
        std::chrono::milliseconds answer{30'000};
        /// How long the service stays without a conversation.
        std::chrono::milliseconds idle{10'000};
        /// Conversations at once.
        int conversations = 32;
        /// Messages of one conversation that wait for their answers.
        int backlog = 16;
        /// Requests in one message.
        int requests = 256;
        /// Bytes of one request as a script's line.
        int lineBytes = 1 << 20;
    };

    /// @param program the path of kvprint.
    PanelService(QString program, const Limits &limits);
    ~PanelService() override;

    /// Offers the conversations on the session bus; the reason when that fails.
    QString offer();

public Q_SLOTS: // NOLINT(readability-redundant-access-specifiers)
    /// Opens a conversation and makes the first requests in it.
    ///
    /// @return the answers, with the conversation's number in @p conversation.
    Q_SCRIPTABLE uint Open(const QList<QVariantMap> &requests, QList<QVariantMap> &answers);
    /// Makes requests up to the first faulty one, and returns their answers.
    Q_SCRIPTABLE QList<QVariantMap> Ask(uint conversation, const QList<QVariantMap> &requests);
    /// Ends a conversation; does nothing when there is none of that number.
    Q_SCRIPTABLE void Close(uint conversation);

Q_SIGNALS:
    /// There has been no conversation for a while, and the bus name is given back.
    void idle();

private:
    struct Conversation
    {
        QString caller;
        std::shared_ptr<PanelProcess> process;
    };

    /// Whether the user wants panels in the calling program.
    bool isCallerOn() const;
    /// The requests as lines; empty, and an error sent, when they are too many or too long.
    QList<QByteArray> linesOf(const QList<QVariantMap> &requests) const;
    /// Answers the current message later.
    void say(uint conversation, QList<QByteArray> lines, bool tellsNumber);
    void end(uint conversation);
    void endAllOf(const QString &caller);
    void leave();

    QString mProgram;
    Limits mLimits;
    ProblemReporter mReporter;
    DialogSettings mSettings;
    QDBusServiceWatcher mCallers;
    QHash<uint, Conversation> mConversations;
    uint mLatest = 0;
    QTimer mIdle;
};
