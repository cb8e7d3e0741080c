// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPlugIn.h"

#include <QObject>

/// The entry into the cut-option bundle's library.
class PlugInFactory : public QObject, public PDEPlugInFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInFactory_iid)
    Q_INTERFACES(PDEPlugInFactory)

public:
    std::unique_ptr<PDEPlugIn> makePlugIn(const QString &principalClass) const override;
};
