// SPDX-License-Identifier: Apache-2.0
#include "InspectorServer.h"

#include <QGenericPlugin>

/// Lets a test look at the widgets of a process that is started with
/// QT_QPA_GENERIC_PLUGINS=kvinspector:SOCKET.
class InspectorPlugIn : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "InspectorPlugIn.json")

public:
    QObject *create(const QString & /*key*/, const QString &socket) override
    {
        return new InspectorServer(socket);
    }
};

#include "InspectorPlugIn.moc"
