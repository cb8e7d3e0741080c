// SPDX-License-Identifier: Apache-2.0
#include "DocumentPortal.h"

#include <QDBusConnection>

namespace {
const QString documentsConnection = u"documents"_s;
} // namespace

DocumentPortal::DocumentPortal()
{
    moveToThread(&mThread);
    mThread.start();
}

DocumentPortal::~DocumentPortal()
{
    mThread.quit();
    mThread.wait();
    QDBusConnection::disconnectFromBus(documentsConnection);
}

bool DocumentPortal::offer(const QString &address)
{
    QDBusConnection bus = QDBusConnection::connectToBus(address, documentsConnection);
    return bus.registerObject(u"/org/freedesktop/portal/documents"_s, this,
                              QDBusConnection::ExportScriptableSlots |
                                  QDBusConnection::ExportScriptableProperties) &&
           bus.registerService(u"org.freedesktop.portal.Documents"_s);
}

QByteArray DocumentPortal::GetMountPoint()
{
    return "/nonexistent";
}

#include "moc_DocumentPortal.cpp"
