// SPDX-License-Identifier: Apache-2.0
#include "PrintingSite.h"
#include "SessionBus.h"
#include "applications/Waiting.h"
#include "service/ServiceName.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingReply>
#include <QDir>
#include <QTest>

#include <csignal>

namespace {
const QString client = u"client"_s;
const QString otherClient = u"other client"_s;

using Requests = QList<QVariantMap>;

QVariantMap request(const char *command, QVariantMap members = {})
{
    members.insert(u"cmd"_s, QLatin1String(command));
    return members;
}

QDBusMessage call(const QString &connection, const char *method, const QVariantList &arguments)
{
    QDBusMessage message = QDBusMessage::createMethodCall(
        QLatin1String(ServiceName::bus), QLatin1String(ServiceName::path),
        QLatin1String(ServiceName::interface), QLatin1String(method));
    message.setArguments(arguments);
    return QDBusConnection(connection).call(message, QDBus::Block, kPatienceMs);
}

QDBusMessage open(const Requests &requests, const QString &connection = client)
{
    return call(connection, "Open", {QVariant::fromValue(requests)});
}

QDBusMessage ask(const QVariant &conversation, const Requests &requests,
                 const QString &connection = client)
{
    return call(connection, "Ask", {conversation, QVariant::fromValue(requests)});
}

Requests answersIn(const QDBusMessage &message)
{
    return qdbus_cast<Requests>(message.arguments().value(message.arguments().size() - 1));
}
} // namespace

/// The panel service on a session bus.
class tst_panelservice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void conversation();
    void faultyRequest();
    void conversationOfAnother();
    void conversationEndsWithItsCaller();
    void limits();
    void hangingPanel();
    void switchedOff();

private: // NOLINT(readability-redundant-access-specifiers)
    static QVariantMap openTape();
    /// The processes that the service has started.
    QStringList panels() const;

    std::unique_ptr<SessionBus> mBus;
};

QVariantMap tst_panelservice::openTape()
{
    return request("open", {{u"ppd"_s, PrintingSite::ppdPath(u"tape"_s)}, {u"locale"_s, u"en"_s}});
}

QStringList tst_panelservice::panels() const
{
    QFile children(u"/proc/%1/task/%1/children"_s.arg(mBus->servicePid()));
    return children.open(QIODevice::ReadOnly)
               ? QString::fromLatin1(children.readAll()).split(u' ', Qt::SkipEmptyParts)
               : QStringList();
}

void tst_panelservice::initTestCase()
{
    qDBusRegisterMetaType<Requests>();
}

void tst_panelservice::init()
{
    mBus = std::make_unique<SessionBus>();
    QCOMPARE(mBus->open(QStringLiteral(KV_PANEL_SERVICE) + u" --idle 300 --answer 1500"_s),
             QString());
    QVERIFY(mBus->connect(client).isConnected());
    QVERIFY(mBus->connect(otherClient).isConnected());
}

void tst_panelservice::cleanup()
{
    QDBusConnection::disconnectFromBus(client);
    QDBusConnection::disconnectFromBus(otherClient);
    mBus.reset();
}

void tst_panelservice::conversation()
{
    QCOMPARE(mBus->servicePid(), 0);
    const QDBusMessage opened = open({openTape(), request("view"), request("show")});
    QCOMPARE(opened.type(), QDBusMessage::ReplyMessage);
    const QVariant number = opened.arguments().constFirst();
    QCOMPARE(answersIn(opened).size(), 3);
    QCOMPARE(answersIn(opened).constFirst().value(u"panels"_s), QVariant(1));
    const QDBusMessage clicked =
        ask(number, {request("click", {{u"control"_s, u"mHalfCutChkBx"_s}}), request("options"),
                     request("look", {{u"scale"_s, 2}})});
    QCOMPARE(answersIn(clicked).size(), 3);
    const auto options = qdbus_cast<QVariantMap>(answersIn(clicked).at(1).value(u"options"_s));
    QCOMPARE(options.value(u"KvHalfCut"_s), QVariant(u"ON"_s));
    QCOMPARE(answersIn(clicked).at(2).value(u"title"_s), QVariant(u"Cut Options"_s));

    QCOMPARE(call(client, "Close", {number}).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(ask(number, {request("options")}).errorName(),
             u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    // It ends by itself, and is started again when it is needed.
    QVERIFY(waitFor([this] { return mBus->servicePid() == 0; }));
    QCOMPARE(open({openTape()}).type(), QDBusMessage::ReplyMessage);
}

void tst_panelservice::faultyRequest()
{
    const QDBusMessage opened =
        open({openTape(), request("click", {{u"control"_s, 5}}), request("view")});
    QCOMPARE(answersIn(opened).size(), 2);
    QCOMPARE(answersIn(opened).at(1).value(u"ok"_s), QVariant(false));
    // The conversation goes on.
    const QDBusMessage viewed = ask(opened.arguments().constFirst(), {request("view")});
    QCOMPARE(answersIn(viewed).constFirst().value(u"ok"_s), QVariant(true));
}

void tst_panelservice::conversationOfAnother()
{
    const QVariant number = open({openTape()}).arguments().constFirst();
    QCOMPARE(ask(number, {request("view")}, otherClient).errorName(),
             u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    call(otherClient, "Close", {number});
    QCOMPARE(ask(number, {request("view")}).type(), QDBusMessage::ReplyMessage);
}

void tst_panelservice::conversationEndsWithItsCaller()
{
    QCOMPARE(open({openTape()}).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(open({openTape()}, otherClient).type(), QDBusMessage::ReplyMessage);
    QCOMPARE(panels().size(), 2);
    QDBusConnection::disconnectFromBus(otherClient);
    QVERIFY(waitFor([this] { return panels().size() == 1; }));
    QDBusConnection::disconnectFromBus(client);
    QVERIFY(waitFor([this] { return mBus->servicePid() == 0; }));
}

void tst_panelservice::limits()
{
    const QString exceeded = u"org.freedesktop.DBus.Error.LimitsExceeded"_s;
    QCOMPARE(open(Requests(300, request("view"))).errorName(), exceeded);
    QCOMPARE(open({request("open", {{u"ppd"_s, QString(2 << 20, u'x')}})}).errorName(), exceeded);
    QCOMPARE(open({}).errorName(), u"org.freedesktop.DBus.Error.InvalidArgs"_s);
    int count = 0;
    while (count < 100 && open({request("close")}).type() == QDBusMessage::ReplyMessage) {
        ++count;
    }
    QCOMPARE(count, 32);
    QCOMPARE(open({request("close")}, otherClient).errorName(), exceeded);
}

void tst_panelservice::hangingPanel()
{
    const QVariant number = open({openTape()}).arguments().constFirst();
    const QStringList hanging = panels();
    QCOMPARE(hanging.size(), 1);
    const QVariant other = open({openTape()}, otherClient).arguments().constFirst();
    QCOMPARE(kill(hanging.constFirst().toInt(), SIGSTOP), 0);
    const QDBusPendingCall waiting = QDBusConnection(client).asyncCall([&number] {
        QDBusMessage message = QDBusMessage::createMethodCall(
            QLatin1String(ServiceName::bus), QLatin1String(ServiceName::path),
            QLatin1String(ServiceName::interface), u"Ask"_s);
        message.setArguments({number, QVariant::fromValue(Requests{request("view")})});
        return message;
    }());
    QCOMPARE(ask(other, {request("view")}, otherClient).type(), QDBusMessage::ReplyMessage);
    QVERIFY(!waiting.isFinished());
    QDBusPendingReply<> reply(waiting);
    reply.waitForFinished();
    QCOMPARE(reply.error().name(), u"org.freedesktop.DBus.Error.Failed"_s);
    QVERIFY(waitFor([this] { return panels().size() == 1; }));
}

void tst_panelservice::switchedOff()
{
    const QDir settings(QDir::home().filePath(u".config/kvprint"_s));
    QVERIFY(settings.mkpath(u"."_s));
    QFile file(settings.filePath(u"dialog.conf"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Applications]\n*=off\n");
    file.close();
    const QString error = open({openTape()}).errorName();
    QVERIFY(file.remove());
    QCOMPARE(error, QLatin1String(ServiceName::switchedOff));
    QCOMPARE(open({openTape()}).type(), QDBusMessage::ReplyMessage);
}

KV_CORE_TEST(tst_panelservice)
#include "tst_panelservice.moc"
