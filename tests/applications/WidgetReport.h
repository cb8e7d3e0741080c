// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>

class QWidget;

/// What can be seen of the widgets of this process.
namespace WidgetReport {
/// Every visible widget of every visible window, as an object with the array "widgets".
QJsonObject all();

/// Saves a picture of the active window; false when there is none or the file cannot be written.
bool grab(const QString &path);
} // namespace WidgetReport
