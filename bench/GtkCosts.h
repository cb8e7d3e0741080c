// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "bench/ExtensionTimes.h"
#include "bench/GtkSurroundings.h"
#include "demo/PrivateScheduler.h"

#include <QString>

#include <iosfwd>
#include <memory>
#include <string>

class GtkDialog;
class SessionBus;

/**
 * What the extension costs an application that shows GTK's print dialog: the time until the dialog
 * is on the screen, with the extension and without it in turn, and the time until the panel is in
 * it.
 *
 * Throws std::runtime_error when the dialogs cannot be shown.
 */
class GtkCosts
{
public:
    explicit GtkCosts(const QProcessEnvironment &display);

    /// Measures dialogs of GTK, "3" or "4".
    void measure(const QString &gtk);

    /// Prints the tables.
    void print(std::ostream &stream) const;

private:
    /// Seconds in the life of a dialog.
    struct Times;

    GtkDialog start(const QString &gtk, const SessionBus &bus, bool isExtended) const;
    static Times open(GtkDialog &dialog, bool isExtended);
    /// Opens two dialogs of a process, while the panel service runs.
    void measureOpenings(const std::string &title, GtkDialog dialog, bool isExtended);
    void add(const std::string &name, const Times &times, bool isExtended);
    void addFilling(const std::string &title, const char *service, const Times &times);
    void compare(const std::string &title);

    std::unique_ptr<PrivateScheduler> mScheduler;
    GtkSurroundings mSurroundings;
    ExtensionTimes mTimes;
};
