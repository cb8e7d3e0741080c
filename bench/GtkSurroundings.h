// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QProcessEnvironment>
#include <QTemporaryDir>

/// Where programs with GTK are run: at a display, with the extension switched on or off, and
/// otherwise alike.
class GtkSurroundings
{
public:
    /// @param display the environment of programs at the display.
    explicit GtkSurroundings(QProcessEnvironment display);

    QProcessEnvironment environment(bool isExtended) const;

private:
    QProcessEnvironment mDisplay;
    QTemporaryDir mOn;
    QTemporaryDir mOff;
};
