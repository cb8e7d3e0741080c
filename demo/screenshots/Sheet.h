// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QImage>
#include <QList>
#include <QString>

/// Pictures in rows, each below its caption.
class Sheet
{
public:
    void add(const QString &caption, const QImage &picture);

    /// Writes a PNG file.
    bool save(const QString &path) const;

private:
    struct Tile
    {
        QString caption;
        QImage picture;
    };

    QList<Tile> mTiles;
};
