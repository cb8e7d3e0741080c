#pragma once

#include <QJsonObject>
#include <QString>

/// A PrinterList for people: for each printer a table of its options and one of its presets, with
/// runs of consecutive numbers among the choices as ranges.
///
/// @param list as PrinterList::toJSON() answers it.
QString printerTable(const QJsonObject &list);
