#pragma once

#include <QString>

class QWidget;

/// Writes a picture of a widget as PNG. What went wrong, with the file's name, and then nothing has
/// been written; null when nothing did.
QString writePictureOf(QWidget &widget, const QString &path);
