#pragma once

#include "plugin/PDEPanel.h"

#include <QtPlugin>

#include <memory>

class Bundle;
class PDEPluginCallback13_v400_;

/// The dialog type of a printer's own panels.
inline const QString kPrinterModuleDialogType =
    QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");

/// A bundle's principal class, the one object that its library gives to the print dialog.
class PDEPlugIn
{
public:
    virtual ~PDEPlugIn() = default;

    /// Whether the plug-in can work on this system; a "false" ends its use.
    virtual bool initWithBundle(const std::shared_ptr<Bundle> &bundle) = 0;

    /**
     * Builds the plug-in's panels for a dialog.
     *
     * @param type what dialog it is.
     * @param hostInfo the dialog's callback object, which the panels keep.
     * @return the panels, which live as long as the caller holds the list. Null when a panel of
     *         the type could not be built, empty when the plug-in has none for it.
     */
    virtual std::shared_ptr<PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v400_> &hostInfo) = 0;
};

#define PDEPlugIn_iid "com.korvane.print.PDEPlugIn/1.0"
Q_DECLARE_INTERFACE(PDEPlugIn, PDEPlugIn_iid)
