// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <plugin/BasePDE.h>

#include <vector>

/// Print speed, darkness and peel-off of a label printer, as they are marked in its PPD.
class ThermalPanel : public BasePDE13_v400_
{
public:
    ThermalPanel(std::shared_ptr<PDEPluginCallback13_v400_> dialog, std::shared_ptr<Bundle> bundle);

    QString panelKind() override { return QStringLiteral("com.example.print.thermal"); }
    std::optional<QStringList> supportedPPDOptionKeys() override { return supportedOptions(); }
    std::optional<QVariantMap> summaryInfo() override;
    void PPDOptionKeyValueDidChange(const QString &, const QString &) override { setPDEItems(); }
    void setPDEItems() override;

protected:
    void awakeFromNib() override;

private:
    /// An option that the PPD has. The form's control for it has its keyword as a name.
    struct Option
    {
        QString key;
        ChoiceList choices;
        QPointer<QWidget> control;
    };

    QString text(const QString &key) const { return nsPDEBundle->localizedStringForKey(key); }

    std::vector<Option> mOptions;
};
