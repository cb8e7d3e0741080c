// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPlugIn.h"

/// The principal class of the cut-option bundle.
class KVMQRVOptionsPlugIn13_v400_ : public PDEPlugIn
{
public:
    /// Whether the dialog-extension interface is version 10.5 or later. The version is asked for
    /// once per process.
    static bool runningOnLeopardOrLater();

    /// False on versions before 10.5. The bundle stays the host's.
    bool initWithBundle(const std::shared_ptr<Bundle> &bundle) override;

    /// One panel for kPrinterModuleDialogType, no panel for any other type.
    std::shared_ptr<PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v400_> &hostInfo) override;

private:
    std::weak_ptr<Bundle> pluginBundle;
    /// The panels last built; null when the last call could build none.
    std::shared_ptr<PDEPanelList> pdes;
};
