// SPDX-License-Identifier: Apache-2.0
#include "toolkit/TrackingArea.h"

#include "printcore/NotificationCenter.h"

#include <QEvent>
#include <QWidget>

TrackingArea::TrackingArea(QWidget *view)
    : QObject(view)
    , mView(view)
{
    mView->installEventFilter(this);
}

bool TrackingArea::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (watched == mView && type == QEvent::Show) {
        watchWindow();
    }
    const bool viewChanged = type == QEvent::Resize ||
                             (watched == mView && (type == QEvent::Show || type == QEvent::Move));
    if (viewChanged) {
        NotificationCenter::defaultCenter().postNotification(
            NSViewDidUpdateTrackingAreasNotification, mView);
    }
    return false;
}

void TrackingArea::watchWindow()
{
    QWidget *window = mView->window();
    if (window == mWindow) {
        return;
    }
    if (mWindow) {
        mWindow->removeEventFilter(this);
    }
    mWindow = window == mView ? nullptr : window;
    if (mWindow) {
        mWindow->installEventFilter(this);
    }
}

#include "moc_TrackingArea.cpp"
