// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/Sheet.h"

#include "printcore/QtVersions.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace {
constexpr int margin = 16;
constexpr int tilesInRow = 3;
const QColor background(0x88, 0x8c, 0x92);

/// Where the tiles are to be drawn, and how large the sheet is.
struct Places
{
    QList<QPoint> tiles;
    QSize sheet;
};

Places placesOf(const QList<QSize> &sizes)
{
    Places places;
    QPoint at(margin, margin);
    int rowHeight = 0;
    for (QtSize i = 0; i < sizes.size(); ++i) {
        if (i > 0 && i % tilesInRow == 0) {
            at = QPoint(margin, at.y() + rowHeight + margin);
            rowHeight = 0;
        }
        places.tiles.append(at);
        rowHeight = std::max(rowHeight, sizes.at(i).height());
        at.rx() += sizes.at(i).width() + margin;
        places.sheet = places.sheet.expandedTo({at.x(), at.y() + rowHeight + margin});
    }
    return places;
}
} // namespace

void Sheet::add(const QString &caption, const QImage &picture)
{
    mTiles.append({caption, picture});
}

bool Sheet::save(const QString &path) const
{
    if (mTiles.isEmpty()) {
        return false;
    }
    const int captionHeight = QFontMetrics(QGuiApplication::font()).height() + margin / 4;
    QList<QSize> sizes;
    for (const Tile &tile : mTiles) {
        const QSizeF size = QSizeF(tile.picture.size()) / tile.picture.devicePixelRatio();
        sizes.append(size.toSize() + QSize(0, captionHeight));
    }
    const Places places = placesOf(sizes);
    const qreal ratio = mTiles.first().picture.devicePixelRatio();
    QImage sheet((QSizeF(places.sheet) * ratio).toSize(), QImage::Format_RGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(background);
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    painter.setFont(QGuiApplication::font());
    for (QtSize i = 0; i < mTiles.size(); ++i) {
        const QPoint at = places.tiles.at(i);
        painter.drawText(QRect(at, QSize(sizes.at(i).width(), captionHeight)), Qt::AlignTop,
                         mTiles.at(i).caption);
        painter.drawImage(at + QPoint(0, captionHeight), mTiles.at(i).picture);
    }
    painter.end();
    return sheet.save(path, "PNG");
}
