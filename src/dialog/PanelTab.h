// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QScrollArea>

class PanelHost;
class PDEPanel;
class WindowPlace;

/// The tab of one panel: makes the panel's view when the tab is first seen.
class PanelTab : public QScrollArea
{
    Q_OBJECT

public:
    /// The host must outlive the tab's being shown; the panel keeps owning its view.
    PanelTab(PanelHost &host, PDEPanel &panel, QWidget *parent = nullptr);
    ~PanelTab() override;

    /// Room for the whole view, as far as the screen allows.
    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void measureAround();

    QPointer<PanelHost> mHost;
    PDEPanel &mPanel;
    QPointer<WindowPlace> mPlace;
    /// The height of the dialog without its tabs' pages, and of its frame.
    int mHeightAround = 0;
};
