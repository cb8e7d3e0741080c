// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPanel.h"

#include <QtPlugin>

#include <memory>

class Bundle;
class PDEPluginCallback13_v400_;

/// The dialog type of a printer's own panels.
inline const QString kPrinterModuleDialogType =
    QStringLiteral("BDB091F4-E57F-11D3-B5CC-0050E4603277");

/// A bundle's principal class: one object for each dialog.
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
     * @return the panels, which the plug-in keeps until the next call or its own end, and the
     *         caller for as long as it holds the list. Null when a panel of the type could not be
     *         built, empty when the plug-in has none for it.
     */
    virtual std::shared_ptr<PDEPanelList>
    PDEPanelsForType(const QString &type,
                     const std::shared_ptr<PDEPluginCallback13_v400_> &hostInfo) = 0;
};

/// The one object that a bundle's library gives to the print dialog: makes principal objects.
class PDEPlugInFactory
{
public:
    virtual ~PDEPlugInFactory() = default;

    /// A new object of the principal class; null when the library has no class of that name.
    virtual std::unique_ptr<PDEPlugIn> makePlugIn(const QString &principalClass) const = 0;
};

/**
 * The interface of that object. The number is the version of the protocol: of the interfaces in
 * this folder and of the classes that the printing core exports. It changes when a panel that has
 * been compiled before would not work any more; a library with another number is not loaded.
 */
#define PDEPlugInFactory_iid "com.korvane.print.PDEPlugInFactory/1.0"
Q_DECLARE_INTERFACE(PDEPlugInFactory, PDEPlugInFactory_iid)
