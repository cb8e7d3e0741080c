// SPDX-License-Identifier: Apache-2.0
#include "InspectorServer.h"

#include "WidgetReport.h"

#include <QJsonDocument>
#include <QLocalSocket>

namespace {
const QByteArray grabRequest = QByteArrayLiteral("grab ");

QJsonObject answerTo(const QByteArray &request)
{
    if (request.startsWith(grabRequest)) {
        const QString path = QString::fromUtf8(request.mid(grabRequest.size()));
        return {{u"saved"_s, WidgetReport::grab(path)}};
    }
    return WidgetReport::all();
}
} // namespace

InspectorServer::InspectorServer(const QString &socket)
{
    connect(&mServer, &QLocalServer::newConnection, this, &InspectorServer::welcome);
    if (!mServer.listen(socket)) {
        qFatal("%s", qPrintable(mServer.errorString()));
    }
}

void InspectorServer::welcome()
{
    while (QLocalSocket *asker = mServer.nextPendingConnection()) {
        connect(asker, &QLocalSocket::readyRead, this, [this, asker] { answer(*asker); });
        connect(asker, &QLocalSocket::disconnected, asker, &QObject::deleteLater);
    }
}

void InspectorServer::answer(QLocalSocket &asker)
{
    while (asker.canReadLine()) {
        const QByteArray request = asker.readLine().trimmed();
        asker.write(QJsonDocument(answerTo(request)).toJson(QJsonDocument::Compact) + '\n');
    }
    asker.flush();
}

#include "moc_InspectorServer.cpp"
