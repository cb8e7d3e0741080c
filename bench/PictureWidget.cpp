// SPDX-License-Identifier: Apache-2.0
#include "bench/PictureWidget.h"

#include <QPainter>

PictureWidget::PictureWidget(const QPixmap &picture, QWidget *parent)
    : QWidget(parent)
    , mPicture(picture)
{
    resize(picture.size());
}

void PictureWidget::paintEvent(QPaintEvent *)
{
    QPainter(this).drawPixmap(0, 0, mPicture);
}
