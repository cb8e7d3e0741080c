// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSet>
#include <QString>

/**
 * The keys that the panel looks up in its string tables, found where they come from:
 *
 * - Every literal of the bundle's sources that begins as keys do ("RS_", "OP_") is a key, be it an
 *   argument or a row of a table.
 * - A literal that ends in "_" is the beginning of keys that are made at run time. There is one:
 *   the presets' names, each made of it and an item of the form's menu.
 * - The texts that the sample printers have for the panel's options.
 */
namespace LookedUpKeys {
/// All of them.
QSet<QString> all();

/// The beginnings of keys that are made at run time.
QSet<QString> beginnings();

/// The identifiers of the form's menu of presets.
QStringList presetIdentifiers();

/// The sample printers' texts for the panel's options.
QSet<QString> optionTexts();

/// Literals that the sources look up though they do not begin as keys do.
QSet<QString> strayLookUps();

/// The texts that the host's sources look up.
QSet<QString> ofHost();
} // namespace LookedUpKeys
