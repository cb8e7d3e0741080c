// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDialog>

#include <functional>

class DialogDriver;

/// The dialog behind the Properties button of a print dialog.
namespace PropertiesDialog {
/// Opens the dialog, does something with it and closes it; false when it did not come up.
bool with(DialogDriver &user, bool accept, const std::function<void(QDialog &)> &action);

/// The PPD name of the paper that is chosen.
QString paper(const QDialog &properties);
/// Whether the list of the PPD's options can be reached.
bool hasOptions(const QDialog &properties);
/// The texts in front of the options that are listed.
QStringList options(const QDialog &properties);
/// Picks the choice of that text wherever an option offers it; false when none does.
bool pickChoice(const QDialog &properties, const QString &text);
} // namespace PropertiesDialog
