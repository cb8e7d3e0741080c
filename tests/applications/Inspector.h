// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "SeenWidget.h"

#include <QLocalSocket>

#include <functional>

/// Looks at the widgets of another process, which has the inspector's plug-in loaded.
class Inspector
{
public:
    using Condition = std::function<bool(const SeenWidget &)>;

    /// @param socket the path of the plug-in's socket.
    explicit Inspector(QString socket);

    /// All visible widgets; none when the process does not answer.
    QList<SeenWidget> look();
    /// The first visible widget that meets the condition; none when there is none.
    SeenWidget find(const Condition &condition);
    /// Waits until there is such a widget; none when there is none in time.
    SeenWidget await(const Condition &condition);
    /// Waits until there is such a widget and it has stayed in its place.
    SeenWidget awaitAtRest(const Condition &condition);
    /// Waits until there is no such widget any more.
    bool awaitGone(const Condition &condition);

    /// Saves a picture of the active window.
    bool grab(const QString &path);

private:
    QJsonObject ask(const QByteArray &question);
    bool isConnected();

    QString mPath;
    QLocalSocket mSocket;
};
