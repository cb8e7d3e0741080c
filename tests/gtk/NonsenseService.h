// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QThread>
#include <QVariantMap>

class SessionBus;

/// Takes the panel service's place on a bus, and answers what nobody has asked for.
class NonsenseService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "example.korvane.KvPrint1.Panels")

public:
    NonsenseService();
    ~NonsenseService() override;

    /// Takes its place; whether it could.
    bool offer(const SessionBus &bus);

public Q_SLOTS:
    Q_SCRIPTABLE uint Open(const QList<QVariantMap> &requests, QList<QVariantMap> &answers);

private:
    QThread mThread;
};
