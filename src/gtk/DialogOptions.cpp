// SPDX-License-Identifier: Apache-2.0
#include "gtk/DialogOptions.h"

#include "gtk/GtkVersions.h"

#include <cstring>

namespace {
/// How GTK's backend for CUPS begins the names of PPD options.
constexpr char prefix[] = "cups-";

/// What GTK's objects of options begin with.
struct BeginningOfOption
{
    GObject parent;
    char *name;
};

bool hasTextProperty(GObject *object, const char *name, GParamFlags flags)
{
    const GParamSpec *property = g_object_class_find_property(G_OBJECT_GET_CLASS(object), name);
    return property && property->value_type == G_TYPE_STRING && (property->flags & flags) == flags;
}

/// The object of the option that a control is for; null when the control is for none, or when GTK
/// keeps options in another way.
GObject *optionOf(GtkWidget *control)
{
    constexpr char source[] = "source";
    if (std::strcmp(G_OBJECT_TYPE_NAME(control), "GtkPrinterOptionWidget") != 0) {
        return nullptr;
    }
    const GParamSpec *property = g_object_class_find_property(G_OBJECT_GET_CLASS(control), source);
    const bool hasObject = property && (property->flags & G_PARAM_READABLE) != 0 &&
                           g_type_is_a(property->value_type, G_TYPE_OBJECT);
    if (!hasObject) {
        return nullptr;
    }
    GObject *option = nullptr;
    g_object_get(control, source, &option, nullptr);
    if (!option) {
        return nullptr;
    }
    // The control keeps it.
    g_object_unref(option);
    GTypeQuery type;
    g_type_query(G_OBJECT_TYPE(option), &type);
    const bool isKnown =
        std::strcmp(G_OBJECT_TYPE_NAME(option), "GtkPrinterOption") == 0 &&
        g_type_parent(G_OBJECT_TYPE(option)) == G_TYPE_OBJECT &&
        type.instance_size >= sizeof(BeginningOfOption) &&
        hasTextProperty(option, "value", GParamFlags(G_PARAM_READABLE | G_PARAM_WRITABLE));
    return isKnown ? option : nullptr;
}

/// Whether the control of an option is shown in the widget, or is the widget.
bool hasVisibleOption(GtkWidget *widget)
{
    bool isVisible = optionOf(widget);
    GtkVersions::forEachChild(widget, [&isVisible](GtkWidget *child) {
        isVisible = isVisible || (gtk_widget_get_visible(child) && hasVisibleOption(child));
    });
    return isVisible;
}

/// Whether the widget is in a page of a notebook, but not the page.
bool isPartOfPage(GtkWidget *widget)
{
    GtkWidget *notebook = gtk_widget_get_ancestor(widget, GTK_TYPE_NOTEBOOK);
    return notebook && gtk_notebook_page_num(GTK_NOTEBOOK(notebook), widget) < 0;
}
} // namespace

DialogOptions::DialogOptions(GtkWidget *dialog)
{
    findIn(dialog);
}

void DialogOptions::findIn(GtkWidget *widget)
{
    if (GObject *option = optionOf(widget)) {
        const char *name = reinterpret_cast<BeginningOfOption *>(option)->name;
        if (name && g_str_has_prefix(name, prefix)) {
            mOptions[name + std::strlen(prefix)] = {option, widget};
        }
        return;
    }
    GtkVersions::forEachChild(widget, [this](GtkWidget *child) { findIn(child); });
}

bool DialogOptions::hasAny(const std::string &beginning) const
{
    const auto first = mOptions.lower_bound(beginning);
    return first != mOptions.end() && first->first.compare(0, beginning.size(), beginning) == 0;
}

std::map<std::string, std::string> DialogOptions::choices() const
{
    std::map<std::string, std::string> choices;
    for (const auto &[key, option] : mOptions) {
        g_autofree char *choice = nullptr;
        g_object_get(option.object, "value", &choice, nullptr);
        if (choice && *choice) {
            choices[key] = choice;
        }
    }
    return choices;
}

void DialogOptions::choose(const std::string &key, const std::string &choice) const
{
    const auto option = mOptions.find(key);
    if (option != mOptions.end()) {
        g_object_set(option->second.object, "value", choice.c_str(), nullptr);
    }
}

std::vector<GtkRef<GtkWidget>> DialogOptions::hide(const std::set<std::string> &keys) const
{
    std::vector<GtkRef<GtkWidget>> hidden;
    const auto hideOne = [&hidden](GtkWidget *widget) {
        if (gtk_widget_get_visible(widget)) {
            gtk_widget_set_visible(widget, FALSE);
            hidden.push_back(refTo(widget));
        }
    };
    for (const std::string &key : keys) {
        const auto option = mOptions.find(key);
        if (option == mOptions.end()) {
            continue;
        }
        GtkWidget *widget = option->second.control;
        GList *labels = gtk_widget_list_mnemonic_labels(widget);
        for (const GList *label = labels; label; label = label->next) {
            hideOne(GTK_WIDGET(label->data));
        }
        g_list_free(labels);
        // The control, and then the group and the page that have no other.
        for (hideOne(widget);
             isPartOfPage(widget) && !hasVisibleOption(gtk_widget_get_parent(widget));
             hideOne(widget)) {
            widget = gtk_widget_get_parent(widget);
        }
    }
    return hidden;
}
