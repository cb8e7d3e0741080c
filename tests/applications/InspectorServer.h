// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLocalServer>

class QLocalSocket;

/**
 * Answers questions about the widgets of this process at a local socket, a line of JSON for each
 * line that asks: "look" for all that can be seen, "grab PATH" to save a picture of the active
 * window. It only looks.
 */
class InspectorServer : public QObject
{
    Q_OBJECT

public:
    /// @param socket the path of the socket.
    explicit InspectorServer(const QString &socket);

private:
    void welcome();
    void answer(QLocalSocket &asker);

    QLocalServer mServer;
};
