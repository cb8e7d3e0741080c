#pragma once

#include <QList>
#include <QString>

/// How the user has set up the desktop: style, colours and size of the font.
struct Look
{
    QString style;
    bool isDark = false;
    /// Of the font's usual size.
    int fontPercent = 100;

    /// Those that sheets are made of at a scale: every style in both themes, at the scale 1 with a
    /// large font, too.
    static QList<Look> all(const QString &scale);

    /// The styles that sheets should be made of but that this Qt does not have.
    static QStringList missingStyles();

    /// Gives the application this look.
    void apply() const;

    /// "fusion-dark-1", for a file's name.
    QString name(const QString &scale) const;
};
