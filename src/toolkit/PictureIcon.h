// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "toolkit/PictureFile.h"

#include <QIconEngine>

/// An icon of a picture file that is read at once, and decoded when the icon is first drawn.
class PictureIcon : public QIconEngine
{
public:
    /// Reads the file that is fine enough for the screen.
    explicit PictureIcon(const QString &path)
        : mPicture(path)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override { return new PictureIcon(*this); }

private:
    PictureFile mPicture;
};
