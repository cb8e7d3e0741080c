// SPDX-License-Identifier: Apache-2.0
#include <gtk/gtk.h>

#include <cstdio>
#include <cstdlib>

namespace {
void printMapped()
{
    char *maps = nullptr;
    if (g_file_get_contents("/proc/self/maps", &maps, nullptr, nullptr)) {
        std::fputs(maps, stdout);
        g_free(maps);
    }
}

void leave()
{
    if (g_getenv("KV_BENCH_MAPS")) {
        printMapped();
    }
    std::exit(EXIT_SUCCESS);
}

/// A window that the application shows; null while it shows none.
GtkWidget *shownWindow()
{
    GtkWidget *shown = nullptr;
    const auto note = [&shown](gpointer window) {
        shown = gtk_widget_get_mapped(GTK_WIDGET(window)) ? GTK_WIDGET(window) : shown;
    };
#if GTK_MAJOR_VERSION >= 4
    GListModel *windows = gtk_is_initialized() ? gtk_window_get_toplevels() : nullptr;
    for (guint i = 0; windows && i < g_list_model_get_n_items(windows); ++i) {
        gpointer window = g_list_model_get_item(windows, i);
        note(window);
        g_object_unref(window);
    }
#else
    GList *windows = gtk_window_list_toplevels();
    for (const GList *window = windows; window; window = window->next) {
        note(window->data);
    }
    g_list_free(windows);
#endif
    return shown;
}

/// Leaves when the window that is shown has been painted.
gboolean look(gpointer)
{
    GtkWidget *window = shownWindow();
    if (!window) {
        return G_SOURCE_CONTINUE;
    }
    g_signal_connect(gtk_widget_get_frame_clock(window), "after-paint", G_CALLBACK(leave), nullptr);
    gtk_widget_queue_draw(window);
    return G_SOURCE_REMOVE;
}

/// Ends the application, which this library is loaded into before all others, when its window has
/// been painted for the first time. Prints the files that are mapped then when KV_BENCH_MAPS is
/// set.
__attribute__((constructor)) void begin()
{
    g_timeout_add(1, look, nullptr);
}
} // namespace
