// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PPD.h"
#include "printcore/PMCore.h"

#include <QString>

/**
 * The print dialog as a panel sees it: where a panel gets the job's objects from and whom it tells
 * of the user's choices.
 *
 * Every object is lent for as long as the panel lives, and may be null.
 */
class PDEPluginCallback13_v400_
{
public:
    virtual ~PDEPluginCallback13_v400_() = default;

    virtual PMPrintSession printSession() = 0;
    virtual PMPrintSettings printSettings() = 0;
    virtual PMPageFormat pageFormat() = 0;
    virtual ::PMPrinter PMPrinter() = 0;
    /// The printer's open PPD, with the choices in force marked.
    virtual ppd_file_t *ppdFile() = 0;

    /// The user, or the panel's own rules, chose @p ppdChoice for the option @p key (keywords).
    virtual void willChangePPDOptionKeyValue(const QString &key, const QString &ppdChoice) = 0;

    /// Whether panelViewDidResize() is offered; without it the panel's view keeps its size.
    virtual bool respondsToPanelViewDidResize() const { return false; }
    /// The panel's view has another size.
    virtual void panelViewDidResize() {}
};
