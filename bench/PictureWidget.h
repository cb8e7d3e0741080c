// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPixmap>
#include <QWidget>

/// A widget that does nothing but draw a picture of its size.
class PictureWidget : public QWidget
{
public:
    PictureWidget(const QPixmap &picture, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap mPicture;
};
