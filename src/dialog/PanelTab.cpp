// SPDX-License-Identifier: Apache-2.0
#include "dialog/PanelTab.h"

#include "dialog/WindowPlace.h"
#include "host/PanelHost.h"

#include <QLayout>
#include <QScreen>
#include <QScrollBar>
#include <QShowEvent>

#include <cmath>

namespace {
/// A tab's size before there is a view, and the least that it needs of the screen.
constexpr QSize leastSize(320, 160);

/// How much smaller than it has asked for the display may make a window whose units are no whole
/// numbers of pixels.
int roundingLoss(qreal pixelRatio)
{
    return std::floor(pixelRatio) < pixelRatio ? 1 : 0;
}
} // namespace

PanelTab::PanelTab(PanelHost &host, PDEPanel &panel, QWidget *parent)
    : QScrollArea(parent)
    , mHost(&host)
    , mPanel(panel)
{
    setObjectName(QStringLiteral("panelTab"));
    setFrameShape(QFrame::NoFrame);
    // The tab's own background, as behind Qt's pages.
    viewport()->setAutoFillBackground(false);
    setWindowTitle(panel.panelName());
    setAccessibleName(panel.panelName());
    connect(&host, &PanelHost::viewResized, this, &PanelTab::updateGeometry);
}

PanelTab::~PanelTab()
{
    // The panel owns its view.
    takeWidget();
}

QSize PanelTab::sizeHint() const
{
    return widget() ? widget()->size() : leastSize;
}

QSize PanelTab::minimumSizeHint() const
{
    const int loss = roundingLoss(devicePixelRatioF());
    const int room = screen()->availableGeometry().height() - mHeightAround - loss;
    const int height = std::min(sizeHint().height(), std::max(room, leastSize.height()));
    const bool isScrolled = height < sizeHint().height();
    const int barWidth = isScrolled ? verticalScrollBar()->sizeHint().width() : 0;
    return {sizeHint().width() + barWidth + loss, height + loss};
}

void PanelTab::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    if (!mHost || event->spontaneous()) {
        return;
    }
    measureAround();
    if (!mPlace) {
        mPlace = new WindowPlace(*window(), this);
    }
    if (!widget()) {
        if (QWidget *view = mHost->view(mPanel)) {
            setWidget(view);
            view->setAutoFillBackground(false);
            updateGeometry();
        }
    }
    mHost->show(mPanel);
}

void PanelTab::measureAround()
{
    const QLayout *layout = window()->layout();
    if (!layout || isWindow()) {
        return;
    }
    const int frame = window()->frameGeometry().height() - window()->height();
    // Whichever of the tabs is the highest, it counts in both.
    const int layoutAround =
        layout->totalMinimumSize().height() - parentWidget()->minimumSizeHint().height();
    mHeightAround = frame + std::max(layoutAround, 0);
}

void PanelTab::hideEvent(QHideEvent *event)
{
    QScrollArea::hideEvent(event);
    const bool isOtherTabShown = window()->isVisible() && !event->spontaneous();
    if (mHost && widget() && isOtherTabShown) {
        mHost->hide(mPanel);
    }
}

#include "moc_PanelTab.cpp"
