#pragma once

#include <QIconEngine>

/// An icon of a picture file that is decoded when the icon is first drawn.
class PictureIcon : public QIconEngine
{
public:
    explicit PictureIcon(const QString &path)
        : mPath(path)
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state,
                         qreal scale) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override { return new PictureIcon(*this); }

private:
    const QIcon &icon();

    QString mPath;
    QIcon mIcon;
};
