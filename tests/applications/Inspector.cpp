// SPDX-License-Identifier: Apache-2.0
#include "Inspector.h"

#include "Waiting.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <utility>

Inspector::Inspector(QString socket)
    : mPath(std::move(socket))
{
}

bool Inspector::isConnected()
{
    if (mSocket.state() == QLocalSocket::UnconnectedState) {
        mSocket.connectToServer(mPath);
    }
    return mSocket.state() == QLocalSocket::ConnectedState || mSocket.waitForConnected();
}

QJsonObject Inspector::ask(const QByteArray &question)
{
    if (!isConnected()) {
        return {};
    }
    mSocket.write(question + '\n');
    while (!mSocket.canReadLine()) {
        if (!mSocket.waitForReadyRead(kPatienceMs)) {
            mSocket.abort();
            return {};
        }
    }
    return QJsonDocument::fromJson(mSocket.readLine()).object();
}

QList<SeenWidget> Inspector::look()
{
    QList<SeenWidget> widgets;
    const QJsonArray all = ask(QByteArrayLiteral("look"))[QLatin1String("widgets")].toArray();
    for (const QJsonValue &widget : all) {
        widgets.append(SeenWidget(widget.toObject()));
    }
    return widgets;
}

SeenWidget Inspector::find(const Condition &condition)
{
    const QList<SeenWidget> all = look();
    const auto found = std::find_if(all.begin(), all.end(), condition);
    return found == all.end() ? SeenWidget() : *found;
}

SeenWidget Inspector::await(const Condition &condition)
{
    SeenWidget found;
    waitFor([&] {
        found = find(condition);
        return found.exists();
    });
    return found;
}

SeenWidget Inspector::awaitAtRest(const Condition &condition)
{
    SeenWidget found;
    QRect former;
    waitFor([&] {
        former = found.area();
        found = find(condition);
        return found.exists() && !former.isEmpty() && found.area() == former;
    });
    return found;
}

bool Inspector::awaitGone(const Condition &condition)
{
    return waitFor([&] {
        const QList<SeenWidget> all = look();
        return std::none_of(all.begin(), all.end(), condition);
    });
}

bool Inspector::grab(const QString &path)
{
    return ask(QByteArrayLiteral("grab ") + path.toUtf8())[QLatin1String("saved")].toBool();
}
