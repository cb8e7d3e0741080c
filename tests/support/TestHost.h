// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "plugin/PDEPanel.h"
#include "plugin/PDEPluginCallback.h"
#include "printcore/Bundle.h"
#include "printcore/PageFormat.h"
#include "printcore/PrintSession.h"
#include "printcore/PrintSettings.h"
#include "printcore/Printer.h"
#include "support/PPDText.h"

#include <QList>

#include <memory>
#include <optional>

/// A keyword and a choice that a panel told the dialog.
using Pair = std::pair<QString, QString>;

/**
 * A print dialog for one panel: lends the printing objects, marks the choices that it is told of
 * and hands them back to the panel, and remembers them in order.
 */
class TestHost : public PDEPluginCallback13_v400_
{
public:
    explicit TestHost(PPDHandle ppd, const QString &deviceURI = QStringLiteral("usb://Korvane/T"));

    PMPrintSession printSession() override { return &session; }
    PMPrintSettings printSettings() override { return settings ? &*settings : nullptr; }
    PMPageFormat pageFormat() override { return &format; }
    ::PMPrinter PMPrinter() override { return printer ? &*printer : nullptr; }
    ppd_file_t *ppdFile() override { return ppd.get(); }
    void willChangePPDOptionKeyValue(const QString &key, const QString &ppdChoice) override;
    bool respondsToPanelViewDidResize() const override { return tellsResize; }
    void panelViewDidResize() override { ++resizes; }

    /// Puts a paper into the page format, without telling anyone.
    void setPaper(const QString &name, double height = 100.0);
    /// Puts a paper into the page format and posts the dialog's notification.
    void changePaper(const QString &name, double height = 100.0);
    /// Stores a private ticket with these entries.
    void setTicket(const QVariantMap &ticket);

    /// The choice that the PPD has marked; null when there is none.
    QString marked(const char *keyword) const;
    /// Marks a choice in the PPD, and tells nobody.
    void mark(const char *keyword, const char *choice);

    /// The pairs told since the last call.
    QList<Pair> takeTold();

    PPDHandle ppd;
    PrintSession session;
    std::optional<PrintSettings> settings{PrintSettings()};
    PageFormat format;
    std::optional<Printer> printer;
    /// Whom choices are handed back to; set it once the panel is built.
    PDEPanel *panel = nullptr;
    /// Whether choices are marked in the PPD.
    bool marks = true;
    bool tellsResize = true;
    int resizes = 0;
    QList<Pair> told;
};

/// The built bundle, opened with its English texts.
std::shared_ptr<Bundle> testBundle();
