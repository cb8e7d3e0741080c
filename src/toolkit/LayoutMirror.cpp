// SPDX-License-Identifier: Apache-2.0
#include "toolkit/LayoutMirror.h"

#include <QEvent>
#include <QWidget>

#include <utility>

LayoutMirror::LayoutMirror(QWidget *nib)
    : QObject(nib)
    , mNib(nib)
    , mWidth(nib->width())
{
    followDirection();
    mNib->installEventFilter(this);
}

bool LayoutMirror::isMirrored(const QWidget *control)
{
    const QWidget *nib = control->parentWidget();
    const auto *mirror =
        nib ? nib->findChild<LayoutMirror *>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
    return mirror && mirror->mIsMirrored;
}

int LayoutMirror::mirrored(const QWidget *control, int x)
{
    return control->parentWidget()->width() - x - control->width();
}

bool LayoutMirror::eventFilter(QObject *, QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        followDirection();
    } else if (event->type() == QEvent::Resize) {
        followWidth();
    }
    return false;
}

void LayoutMirror::followWidth()
{
    const int by = mNib->width() - std::exchange(mWidth, mNib->width());
    if (by == 0 || !mIsMirrored) {
        return;
    }
    for (QWidget *control : controls()) {
        control->move(control->x() + by, control->y());
    }
}

void LayoutMirror::followDirection()
{
    if (mIsMirrored == mNib->isRightToLeft()) {
        return;
    }
    mIsMirrored = !mIsMirrored;
    for (QWidget *control : controls()) {
        control->move(mirrored(control, control->x()), control->y());
    }
}

QList<QWidget *> LayoutMirror::controls() const
{
    return mNib->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
}

#include "moc_LayoutMirror.cpp"
