// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/MeasuredPrinter.h"

#include <QPrintDialog>
#include <QPrinter>

#include <chrono>

class QDialog;

/**
 * Qt's own page of a queue's PPD options: a tab of the dialog that the Properties button opens.
 *
 * A print dialog keeps its Properties dialog, so each page needs a print dialog of its own. Throws
 * std::runtime_error when the page is not what it has to be.
 */
class PropertiesPage
{
public:
    /// Opens a print dialog for the printer.
    explicit PropertiesPage(const MeasuredPrinter &printer);

    /// Clicks Properties, turns to the page and closes it; the time until its widgets are shown.
    std::chrono::duration<double> open();

private:
    /// What is not as it has to be; null when everything is.
    QString fault(const QDialog &properties) const;

    MeasuredPrinter mPrinter;
    QPrinter mTarget;
    QPrintDialog mDialog;
};
