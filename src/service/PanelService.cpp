// SPDX-License-Identifier: Apache-2.0
#include "service/PanelService.h"

#include "service/PanelProcess.h"
#include "service/ServiceName.h"
#include "service/VariantJson.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QFileInfo>

namespace {
const QString busName = QLatin1String(ServiceName::bus);

QVariant messagesOf(const QList<QJsonObject> &answers)
{
    QList<QVariantMap> messages;
    for (const QJsonObject &answer : answers) {
        messages.append(messageOf(answer));
    }
    return QVariant::fromValue(messages);
}
} // namespace

PanelService::PanelService(QString program, const Limits &limits)
    : mProgram(std::move(program))
    , mLimits(limits)
    , mSettings(mReporter)
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    mCallers.setWatchMode(QDBusServiceWatcher::WatchForUnregistration);
    connect(&mCallers, &QDBusServiceWatcher::serviceUnregistered, this, &PanelService::endAllOf);
    mIdle.setSingleShot(true);
    mIdle.setInterval(mLimits.idle);
    connect(&mIdle, &QTimer::timeout, this, &PanelService::leave);
}

PanelService::~PanelService() = default;

QString PanelService::offer()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    mCallers.setConnection(bus);
    const bool isOffered = bus.registerObject(QLatin1String(ServiceName::path), this,
                                              QDBusConnection::ExportScriptableSlots) &&
                           bus.registerService(busName);
    mIdle.start();
    return isOffered ? QString()
                     : QStringLiteral("the session bus: %1").arg(bus.lastError().message());
}

bool PanelService::isCallerOn() const
{
    const auto pid = connection().interface()->servicePid(message().service());
    const QFileInfo program(QStringLiteral("/proc/%1/exe").arg(pid.value()));
    return mSettings.isOn(QFileInfo(program.symLinkTarget()).fileName());
}

QList<QByteArray> PanelService::linesOf(const QList<QVariantMap> &requests) const
{
    QList<QByteArray> lines;
    bool isShort = requests.size() <= mLimits.requests;
    for (const QVariantMap &request : requests) {
        if (isShort) {
            lines.append(lineOf(request));
            isShort = lines.constLast().size() <= mLimits.lineBytes;
        }
    }
    if (!isShort) {
        sendErrorReply(QDBusError::LimitsExceeded,
                       QStringLiteral("a message has at most %1 requests of %2 bytes")
                           .arg(mLimits.requests)
                           .arg(mLimits.lineBytes));
    } else if (lines.isEmpty()) {
        sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("the message has no request"));
    }
    return isShort ? lines : QList<QByteArray>();
}

uint PanelService::Open(const QList<QVariantMap> &requests, QList<QVariantMap> &)
{
    const QList<QByteArray> lines = linesOf(requests);
    if (lines.isEmpty()) {
        return 0;
    }
    if (!isCallerOn()) {
        sendErrorReply(QLatin1String(ServiceName::switchedOff),
                       QStringLiteral("the user has switched the panels off for this program"));
        return 0;
    }
    if (mConversations.size() >= mLimits.conversations) {
        sendErrorReply(
            QDBusError::LimitsExceeded,
            QStringLiteral("there are %1 conversations already").arg(mLimits.conversations));
        return 0;
    }
    mIdle.stop();
    mConversations.insert(
        ++mLatest, {message().service(), std::make_shared<PanelProcess>(mProgram, mLimits.answer)});
    mCallers.addWatchedService(message().service());
    say(mLatest, lines, true);
    return 0;
}

QList<QVariantMap> PanelService::Ask(uint conversation, const QList<QVariantMap> &requests)
{
    const QList<QByteArray> lines = linesOf(requests);
    if (lines.isEmpty()) {
        return {};
    }
    const Conversation found = mConversations.value(conversation);
    if (!found.process || found.caller != message().service()) {
        sendErrorReply(QDBusError::InvalidArgs,
                       QStringLiteral("there is no conversation %1").arg(conversation));
    } else if (found.process->backlog() >= mLimits.backlog) {
        sendErrorReply(
            QDBusError::LimitsExceeded,
            QStringLiteral("%1 messages have not been answered yet").arg(mLimits.backlog));
    } else {
        say(conversation, lines, false);
    }
    return {};
}

void PanelService::say(uint conversation, QList<QByteArray> lines, bool tellsNumber)
{
    setDelayedReply(true);
    const auto answer = [this, conversation, tellsNumber, question = message(), bus = connection()](
                            const QList<QJsonObject> &answers, const QString &failure) {
        if (!failure.isNull()) {
            bus.send(question.createErrorReply(QDBusError::Failed, failure));
            QMetaObject::invokeMethod(
                this, [this, conversation] { end(conversation); }, Qt::QueuedConnection);
            return;
        }
        QVariantList reply;
        if (tellsNumber) {
            reply.append(conversation);
        }
        bus.send(question.createReply(reply << messagesOf(answers)));
    };
    // It may end the conversation.
    const auto process = mConversations.value(conversation).process;
    process->say(std::move(lines), answer);
}

void PanelService::Close(uint conversation)
{
    if (mConversations.value(conversation).caller == message().service()) {
        end(conversation);
    }
}

void PanelService::end(uint conversation)
{
    const Conversation ended = mConversations.take(conversation);
    const auto isHis = [&ended](const Conversation &other) {
        return other.caller == ended.caller;
    };
    if (std::none_of(mConversations.cbegin(), mConversations.cend(), isHis)) {
        mCallers.removeWatchedService(ended.caller);
    }
    if (mConversations.isEmpty()) {
        mIdle.start();
    }
}

void PanelService::endAllOf(const QString &caller)
{
    const QList<uint> numbers = mConversations.keys();
    for (const uint number : numbers) {
        if (mConversations.value(number).caller == caller) {
            end(number);
        }
    }
}

void PanelService::leave()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    bus.unregisterService(busName);
    // What has been sent here before, nobody else will answer.
    QCoreApplication::processEvents();
    if (mConversations.isEmpty()) {
        Q_EMIT idle();
    } else {
        bus.registerService(busName);
    }
}

#include "moc_PanelService.cpp"
