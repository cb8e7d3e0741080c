// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "dialog/PrintDialogExtender.h"
#include "host/LastChoices.h"
#include "host/PanelBundles.h"
#include "host/ProblemReporter.h"

#include <optional>

/// Extends all print dialogs of an application, unless the DialogSettings switch it off, with the
/// bundles that are installed beside this library.
class DialogService : public QObject, public PrintDialogExtender
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID PrintDialogExtender_iid)
    Q_INTERFACES(PrintDialogExtender)

public:
    void extend(QObject *printDialog) override;

private:
    const PanelBundles &bundles();
    PanelBundles loadBundles();

    ProblemReporter mReporter;
    LastChoices mLastChoices;
    /// Nothing before the first dialog.
    std::optional<PanelBundles> mBundles;
};
