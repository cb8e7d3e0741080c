// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/BasePDE.h"

#include <QStringList>

/// A panel of the base class as it stands.
class PlainPanel : public BasePDE13_v400_
{
public:
    PlainPanel(std::shared_ptr<PDEPluginCallback13_v400_> callback, std::shared_ptr<Bundle> bundle)
        : BasePDE13_v400_(std::move(callback), std::move(bundle))
    {
    }
};

/// A panel of the base class that records which hooks are called, with its state open to a test.
class RecordingPanel : public PlainPanel
{
public:
    using PlainPanel::PlainPanel;

    void initSetTitleTexts() override { note("initSetTitleTexts"); }
    void initUI() override { note("initUI"); }
    void getValuesFromKey() override { note("getValuesFromKey"); }
    void setValuesToKey() override { note("setValuesToKey"); }
    void setPDEItems() override { note("setPDEItems"); }
    void setPDEItems2() override { note("setPDEItems2"); }
    void updateUIItem(quint32) override { note("updateUIItem"); }
    void updateMarkedSelections(quint32) override { note("updateMarkedSelections"); }
    void awakeFromNib() override { note("awakeFromNib"); }

    using BasePDE13_v400_::deviceURI;
    using BasePDE13_v400_::formatSettings;
    using BasePDE13_v400_::kPDEView;
    using BasePDE13_v400_::pmPrintSettings;
    using BasePDE13_v400_::ppd;
    using BasePDE13_v400_::printer;
    using BasePDE13_v400_::printSession;
    using BasePDE13_v400_::printSettings;

    /// The hooks' names in the order of their calls.
    QStringList calls;

private:
    void note(const char *hook) { calls.append(QLatin1String(hook)); }
};
