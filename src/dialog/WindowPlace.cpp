// SPDX-License-Identifier: Apache-2.0
#include "dialog/WindowPlace.h"

#include <QResizeEvent>
#include <QScreen>
#include <QTimer>
#include <QWidget>

namespace {
/// Where a stretch of that length has to begin to end within the room; at the room's beginning when
/// it is longer than that.
int beginWithin(int begin, int length, int roomBegin, int roomLength)
{
    return std::max(roomBegin, std::min(begin, roomBegin + roomLength - length));
}
} // namespace

WindowPlace::WindowPlace(QWidget &window, QObject *parent)
    : QObject(parent)
    , mWindow(window)
{
    mWindow.installEventFilter(this);
}

bool WindowPlace::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == &mWindow && event->type() == QEvent::Resize && !event->spontaneous()) {
        const auto *resize = static_cast<QResizeEvent *>(event);
        if (resize->size().expandedTo(resize->oldSize()) != resize->oldSize()) {
            QTimer::singleShot(0, this, &WindowPlace::moveBack);
        }
    }
    return false;
}

void WindowPlace::moveBack()
{
    if (mWindow.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)) {
        return;
    }
    const QRect room = mWindow.screen()->availableGeometry();
    const QRect frame = mWindow.frameGeometry();
    const QPoint corner(beginWithin(frame.x(), frame.width(), room.x(), room.width()),
                        beginWithin(frame.y(), frame.height(), room.y(), room.height()));
    if (corner != frame.topLeft()) {
        mWindow.move(corner);
    }
}

#include "moc_WindowPlace.cpp"
