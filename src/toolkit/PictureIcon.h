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
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override { return new PictureIcon(*this); }
    /// Answers for a picture for a display of another scale.
    void virtual_hook(int id, void *data) override;

private:
    const QIcon &icon();

    QString mPath;
    QIcon mIcon;
};
