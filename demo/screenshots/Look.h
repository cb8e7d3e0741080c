// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// How the user has set up the desktop: style, colours and size of the font.
struct Look
{
    QString style;
    bool isDark = false;
    /// Of the font's usual size.
    int fontPercent = 100;

    /// Those that sheets are made of at a scale: the styles in both themes, at the scale 1 with a
    /// large font, too.
    static QList<Look> all(const QStringList &styles, const QString &scale);

    /// Gives the application this look.
    void apply() const;

    /// "fusion-dark-1", for a file's name.
    QString name(const QString &scale) const;
};
