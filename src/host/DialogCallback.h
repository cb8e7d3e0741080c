// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/PanelTarget.h"
#include "plugin/PDEPluginCallback.h"
#include "printcore/PageFormat.h"
#include "printcore/PrintSession.h"

#include <QObject>

#include <memory>

/**
 * The dialog as its panels see it: owns the job's objects and the PPD, marks the choices that the
 * panels tell, and passes them on.
 */
class DialogCallback : public QObject, public PDEPluginCallback13_v400_
{
    Q_OBJECT

public:
    explicit DialogCallback(PanelTarget target);

    PMPrintSession printSession() override { return &mSession; }
    PMPrintSettings printSettings() override { return &mSettings; }
    PMPageFormat pageFormat() override { return &mPageFormat; }
    ::PMPrinter PMPrinter() override { return &mPrinter; }
    ppd_file_t *ppdFile() override { return mPPD->get(); }
    void willChangePPDOptionKeyValue(const QString &key, const QString &ppdChoice) override;
    bool respondsToPanelViewDidResize() const override { return true; }
    void panelViewDidResize() override;

    PPDFile &ppd() const { return *mPPD; }
    /// What the panels' options stand for; nothing when they are the printer's own.
    const std::optional<KeywordMap> &map() const { return mMap; }

    /// The marked choices of the panels' options that the PPD has, in the printer's words.
    JobOptions jobOptions(const QStringList &keys) const;

    const Printer &printer() const { return mPrinter; }
    const Paper &paper() const { return *mPageFormat.paper(); }
    /// Puts another paper into the page format, and tells the panels so.
    void changePaper(const Paper &paper);

Q_SIGNALS:
    /// A choice has been marked in the PPD.
    void choiceChanged(const QString &key, const QString &choice);
    /// A panel told a choice that the PPD lacks; nothing has been marked.
    void choiceRefused(const QString &key, const QString &choice);
    /// A panel's view has another size.
    void viewResized();

private:
    std::unique_ptr<PPDFile> mPPD;
    std::optional<KeywordMap> mMap;
    PrintSession mSession;
    PrintSettings mSettings;
    PageFormat mPageFormat;
    Printer mPrinter;
};
