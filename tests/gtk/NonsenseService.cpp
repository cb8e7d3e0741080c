// SPDX-License-Identifier: Apache-2.0
#include "NonsenseService.h"

#include "SessionBus.h"
#include "service/ServiceName.h"

#include <QCoreApplication>
#include <QDBusMetaType>

namespace {
const QString connectionName = u"nonsense"_s;
} // namespace

NonsenseService::NonsenseService()
{
    qDBusRegisterMetaType<QList<QVariantMap>>();
    moveToThread(&mThread);
    mThread.start();
}

NonsenseService::~NonsenseService()
{
    mThread.quit();
    mThread.wait();
    QDBusConnection::disconnectFromBus(connectionName);
}

bool NonsenseService::offer(const SessionBus &sessionBus)
{
    QDBusConnection bus = sessionBus.connect(connectionName);
    // Qt delivers nothing to an object before its first event.
    QCoreApplication::processEvents();
    return bus.registerObject(QLatin1String(ServiceName::path), this,
                              QDBusConnection::ExportScriptableSlots) &&
           bus.registerService(QLatin1String(ServiceName::bus));
}

uint NonsenseService::Open(const QList<QVariantMap> &requests, QList<QVariantMap> &answers)
{
    const QVariantMap options{
        {u"KvHalfCut"_s, 7}, {u"KvNothing"_s, u"ON"_s}, {u"KvMirror"_s, u"OFF"_s}};
    for (qsizetype i = 0; i < requests.size(); ++i) {
        answers.append({{u"ok"_s, true},
                        {u"panels"_s, qlonglong(1)},
                        {u"title"_s, QVariantList{1, 2}},
                        {u"boxes"_s, u"all of them"_s},
                        {u"events"_s, QVariantList{3, u"alert"_s, QVariantList{}}},
                        {u"options"_s, options}});
    }
    return 1;
}

#include "moc_NonsenseService.cpp"
