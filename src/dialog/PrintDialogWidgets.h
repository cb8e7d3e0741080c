// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPageSize>
#include <QStringList>

class QComboBox;
class QPrintDialog;
class QTabWidget;
class QWidget;

/**
 * @file
 * Access to those parts of Qt's print dialog that have no public interface, by their object and
 * class names.
 */

/// The object name of the dialog's menu of printers.
inline constexpr char kPrintersMenuName[] = "printers";
/// The class name of the dialog behind the Properties button.
inline constexpr char kPropertiesDialogClass[] = "QPrintPropertiesDialog";

/// The menu of printers; null when the dialog has none.
QComboBox *printersMenu(const QPrintDialog &dialog);

/// Whether "Print to File" is selected in the dialog's menu of printers.
bool isPrintingToFile(const QPrintDialog &dialog);

/// The tabs of the dialog; null when it has none.
QTabWidget *optionTabs(const QPrintDialog &dialog);

/// The width in pixels that shows the titles of all tabs at once, at most what the dialog's screen
/// has room for.
int widthOfTabTitles(const QPrintDialog &dialog);

/// The paper that is chosen in a Properties dialog; an invalid one when there is none.
QPageSize chosenPageSize(const QWidget &propertiesDialog);

/// Chooses the paper in a Properties dialog; changes nothing when it is not on the menu.
void choosePageSize(const QWidget &propertiesDialog, const QPageSize &size);

/**
 * Takes options out of the list of PPD options that a Properties dialog shows, so that there is
 * one place to set them. Groups, and the list's tab, go with their last option.
 *
 * @param texts the options' texts as the PPD gives them.
 */
void hideListedOptions(const QWidget &propertiesDialog, const QStringList &texts);

/// Whether the object is somewhere below the ancestor, in another window or not.
bool isBelow(const QObject *object, const QObject *ancestor);
