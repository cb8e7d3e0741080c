// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/StringTables.h"

/**
 * The texts of the dialog's own parts around the panels, in the user's language.
 *
 * They come from tables within the library, so the application needs no translator for them.
 */
class HostText
{
public:
    /// Loads the tables of the user's languages.
    HostText();

    /// The text that is this one in English; itself when no table has it.
    QString text(const char *english) const;

private:
    StringTables mTables;
};
