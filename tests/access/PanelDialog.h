// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "PanelFixture.h"

#include <QPrintDialog>
#include <QPrinter>

/// A panel as the only tab of Qt's print dialog, on the screen.
class PanelDialog
{
public:
    /// @param fixture outlives this object; its panel is built here.
    explicit PanelDialog(PanelFixture &fixture);
    ~PanelDialog();
    PanelDialog(const PanelDialog &) = delete;
    PanelDialog &operator=(const PanelDialog &) = delete;

    /// Whether the dialog is there and has the keyboard.
    bool isReady() const { return mIsReady; }

    /// The controls below the view that the keyboard reaches with the tab key, in order.
    QList<QWidget *> tabOrder() const;

    QPrintDialog &dialog() { return mDialog; }

private:
    QPrinter mPrinter;
    QPrintDialog mDialog;
    PanelFixture &mFixture;
    bool mIsReady = false;
};
