// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QGenericPlugin>

/**
 * The plug-in that every Qt application loads at its start when QT_QPA_GENERIC_PLUGINS names it. It
 * needs only QtGui, and loads none of our other libraries before the first print dialog.
 */
class PrintDialogPlugIn : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "PrintDialogPlugIn.json")

public:
    /// An object that Qt deletes with the application: it must not have a parent. It does nothing
    /// when KVPRINT_DIALOG is "off".
    QObject *create(const QString &key, const QString &details) override;
};
