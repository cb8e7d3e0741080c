// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

class QWidget;

/// Writes a picture of a widget as PNG.
///
/// @return null, or the error with the file's name; nothing has been written then.
QString writePictureOf(QWidget &widget, const QString &path);
