// SPDX-License-Identifier: Apache-2.0
#pragma once

class QString;
class QWidget;

/**
 * Has a warning with an empty message text opened when the program waits for events, so that no
 * function of the caller is running then, and does not wait for the user.
 *
 * Until it is closed, nothing else can be done in the view's window. It goes with the view, and
 * with the window when that is hidden or destroyed.
 *
 * @param view what the warning is about; nothing is shown for null.
 * @param title of the alert's window.
 * @param informativeText what the user is told.
 */
void openAlert(QWidget *view, const QString &title, const QString &informativeText);
