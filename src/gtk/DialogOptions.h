// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gtk/GtkRef.h"

#include <gtk/gtk.h>

#include <map>
#include <set>
#include <string>
#include <vector>

/**
 * The printer's options in GTK's print dialog, by their PPD keywords.
 *
 * GTK keeps them in objects that it documents nowhere. An object counts only if its type, its
 * property and its name are what they are believed to be, so with another GTK there are no options.
 */
class DialogOptions
{
public:
    /// @param dialog must outlive this object.
    explicit DialogOptions(GtkWidget *dialog);

    bool has(const std::string &key) const { return mOptions.count(key) != 0; }
    /// Whether there is an option whose keyword begins so.
    bool hasAny(const std::string &beginning) const;

    /// The choice of every option that has one.
    std::map<std::string, std::string> choices() const;

    /// Chooses; does nothing when there is no such option.
    void choose(const std::string &key, const std::string &choice) const;

    /// Hides the controls of these options, and the groups and pages that have no other.
    ///
    /// @return all that has been hidden.
    std::vector<GtkRef<GtkWidget>> hide(const std::set<std::string> &keys) const;

private:
    struct Option
    {
        /// A GtkPrinterOption, owned by the dialog.
        GObject *object;
        /// The control that GTK has made for it.
        GtkWidget *control;
    };

    void findIn(GtkWidget *widget);

    std::map<std::string, Option> mOptions;
};
