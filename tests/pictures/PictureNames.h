// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSize>
#include <QStringList>

/// The names of the bundle's pictures, and the room that the form gives them.
namespace PictureNames {
/// One picture of each kind of screen.
struct Variant
{
    double ratio;
    const char *mark;
};

/// The variants of each picture, from the coarsest to the finest.
inline constexpr Variant variants[] = {{1.0, ""}, {1.5, "@1.5x"}, {2.0, "@2x"}, {3.0, "@3x"}};

/// The states of a picture's switches, in the order of its name.
QList<bool> switchesOf(const QString &name);
/// The name of the picture that has one switch the other way.
QString toggled(const QString &name, qsizetype which);

/// The 28 pictures of the preview.
QStringList previews();
/// The pictures of the menu's 17 items, as the form names them.
QStringList presets();
/// Where the picture of that name is, in one of the variants.
QString path(const QString &name, const char *mark);

/// Adds a column "name" and a row for each name.
void addRows(const QStringList &names);

/// The size of the preview's place holder in the form.
QSize previewFrame();
/// The size of the menu's icons in the form.
QSize iconFrame();
} // namespace PictureNames
