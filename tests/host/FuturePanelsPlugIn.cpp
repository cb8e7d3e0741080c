// SPDX-License-Identifier: Apache-2.0
#include <QObject>
#include <QtPlugin>

/// A bundle's library for a later version of the protocol, which no process may run.
class FuturePanelsPlugIn : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "com.korvane.print.PDEPlugInFactory/2.0")

public:
    FuturePanelsPlugIn() { qFatal("a library for another protocol has been run"); }
};

#include "FuturePanelsPlugIn.moc"
