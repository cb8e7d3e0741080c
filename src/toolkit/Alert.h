#pragma once

class QString;
class QWidget;

/**
 * Shows a warning with an empty message text and waits until the user has closed it.
 *
 * @param parent a widget of the dialog that the alert blocks; null for none.
 * @param title of the alert's window.
 * @param informativeText what the user is told.
 */
void runModalAlert(QWidget *parent, const QString &title, const QString &informativeText);
