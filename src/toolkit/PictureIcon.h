// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/PictureFile.h"

#include <QIconEngine>

#include <utility>

/// An icon of a picture file, which is decoded when the icon is first drawn.
class PictureIcon : public QIconEngine
{
public:
    explicit PictureIcon(PictureFile picture)
        : mPicture(std::move(picture))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override { return new PictureIcon(*this); }

private:
    PictureFile mPicture;
};
