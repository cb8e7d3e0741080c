// SPDX-License-Identifier: Apache-2.0
#include "ThermalPanel.h"

#include <plugin/PDEPlugIn.h>

/// Makes the panel for each dialog.
struct ThermalPlugIn : PDEPlugIn
{
    bool initWithBundle(const std::shared_ptr<Bundle> &own) override { return bool(bundle = own); }
    std::shared_ptr<PDEPanelList>
    PDEPanelsForType(const QString &,
                     const std::shared_ptr<PDEPluginCallback13_v400_> &dialog) override
    {
        panels = std::make_shared<PDEPanelList>();
        panels->push_back(std::make_unique<ThermalPanel>(dialog, bundle));
        return panels;
    }

    std::shared_ptr<Bundle> bundle;
    std::shared_ptr<PDEPanelList> panels;
};

/// The entry into the library, of which Info.json names the class above.
class ThermalFactory : public QObject, public PDEPlugInFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PDEPlugInFactory_iid)
    Q_INTERFACES(PDEPlugInFactory)

public:
    std::unique_ptr<PDEPlugIn> makePlugIn(const QString &) const override
    {
        return std::make_unique<ThermalPlugIn>();
    }
};

#include "ThermalPlugIn.moc"
