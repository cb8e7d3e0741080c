// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtk/gtk.h>
#include <gtk/gtkunixprint.h>

#if GTK_MAJOR_VERSION < 4
#include <cairo-gobject.h>
#endif

#include <functional>
#include <string>
#include <vector>

/// What GTK 3 and GTK 4 do by different names. No other source asks for the version.
namespace GtkVersions {
/// Calls the function with every child of a widget, those that it has made for itself included.
inline void forEachChild(GtkWidget *widget, const std::function<void(GtkWidget *)> &visit)
{
#if GTK_MAJOR_VERSION >= 4
    for (GtkWidget *child = gtk_widget_get_first_child(widget); child;
         child = gtk_widget_get_next_sibling(child)) {
        visit(child);
    }
#else
    if (GTK_IS_CONTAINER(widget)) {
        const auto callback = [](GtkWidget *child, gpointer data) {
            (*static_cast<const std::function<void(GtkWidget *)> *>(data))(child);
        };
        gtk_container_forall(GTK_CONTAINER(widget), callback,
                             const_cast<std::function<void(GtkWidget *)> *>(&visit));
    }
#endif
}

/// Adds a child at a box' end.
inline void append(GtkWidget *box, GtkWidget *child)
{
#if GTK_MAJOR_VERSION >= 4
    gtk_box_append(GTK_BOX(box), child);
#else
    gtk_box_pack_start(GTK_BOX(box), child, FALSE, FALSE, 0);
#endif
}

/// Makes a widget what scrolls in a window, instead of any other.
inline void setScrolled(GtkWidget *window, GtkWidget *child)
{
#if GTK_MAJOR_VERSION >= 4
    gtk_scrolled_window_set_child(GTK_SCROLLED_WINDOW(window), child);
#else
    if (GtkWidget *former = gtk_bin_get_child(GTK_BIN(window))) {
        gtk_widget_destroy(former);
    }
    gtk_container_add(GTK_CONTAINER(window), child);
#endif
}

inline GtkWidget *newScrolledWindow()
{
#if GTK_MAJOR_VERSION >= 4
    return gtk_scrolled_window_new();
#else
    return gtk_scrolled_window_new(nullptr, nullptr);
#endif
}

/// Shows a new widget with all that is in it.
inline void showAll(GtkWidget *widget)
{
#if GTK_MAJOR_VERSION >= 4
    gtk_widget_set_visible(widget, TRUE);
#else
    gtk_widget_show_all(widget);
#endif
}

inline void destroyWindow(GtkWidget *window)
{
#if GTK_MAJOR_VERSION >= 4
    gtk_window_destroy(GTK_WINDOW(window));
#else
    gtk_widget_destroy(window);
#endif
}

/// Names a widget for people who do not see it.
inline void setAccessibleName(GtkWidget *widget, const char *name)
{
#if GTK_MAJOR_VERSION >= 4
    gtk_accessible_update_property(GTK_ACCESSIBLE(widget), GTK_ACCESSIBLE_PROPERTY_LABEL, name, -1);
#else
    atk_object_set_name(gtk_widget_get_accessible(widget), name);
#endif
}

/// Names the items of a menu's list for people who do not see them. GTK 4 has no way to it.
inline void setAccessibleItems(GtkComboBox *menu, const std::vector<std::string> &names)
{
#if GTK_MAJOR_VERSION >= 4
    (void)menu;
    (void)names;
#else
    AtkObject *list = gtk_combo_box_get_popup_accessible(menu);
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (AtkObject *item = atk_object_ref_accessible_child(list, int(i))) {
            atk_object_set_name(item, names[i].c_str());
            g_object_unref(item);
        }
    }
#endif
}

#if GTK_MAJOR_VERSION >= 4
/// A picture that knows the size that it was made for.
using Picture = GdkPaintable;
inline GType pictureType()
{
    return GDK_TYPE_PAINTABLE;
}
#else
using Picture = cairo_surface_t;
inline GType pictureType()
{
    return CAIRO_GOBJECT_TYPE_SURFACE;
}
#endif
} // namespace GtkVersions
