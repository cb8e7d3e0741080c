// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QJsonObject>
#include <QString>

/// A PrinterList as text: for each printer its map, if it has one, a table of its options and one
/// of its presets, with consecutive numbers among the choices as ranges.
///
/// @param list as PrinterList::toJSON() answers it.
QString printerTable(const QJsonObject &list);
