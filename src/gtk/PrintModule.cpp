// SPDX-License-Identifier: Apache-2.0

// What GTK loads as one of its print backends, with the first print dialog of an application. It
// has no printers: it watches for print dialogs.

#include "gtk/DialogFollower.h"

#include <gio/gio.h>

#include <utility>

#define KV_EXPORT extern "C" __attribute__((visibility("default")))

namespace {
constexpr const char *dialogType = "GtkPrintUnixDialog";

void (*formerConstructed)(GObject *dialog) = nullptr;

/// What is connected here comes before all that the application connects.
void constructed(GObject *dialog)
{
    formerConstructed(dialog);
    DialogFollower::follow(GTK_PRINT_UNIX_DIALOG(dialog));
}

/// Whether the user has switched the extension off; tells of a value that means nothing.
bool isOff()
{
    const char *value = g_getenv("KVPRINT_DIALOG");
    if (value && *value && !g_str_equal(value, "on") && !g_str_equal(value, "off")) {
        g_autofree char *shown = g_strescape(value, nullptr);
        g_printerr("kvprint: KVPRINT_DIALOG: \"%s\" is neither \"on\" nor \"off\"\n", shown);
    }
    return g_strcmp0(value, "off") == 0;
}

/// Follows every dialog from now on, that which is being constructed included.
void followDialogs(gpointer dialogs)
{
    if (!isOff()) {
        formerConstructed = G_OBJECT_CLASS(dialogs)->constructed;
        G_OBJECT_CLASS(dialogs)->constructed = constructed;
    }
}

/// Called for each interface of a class that is being made, behind its own initialisation.
void awaitDialogs(gpointer, gpointer interface)
{
    const GType type = static_cast<GTypeInterface *>(interface)->g_instance_type;
    if (!formerConstructed && g_strcmp0(g_type_name(type), dialogType) == 0) {
        followDialogs(g_type_class_ref(type));
    }
}

/// Begins once. The module stays loaded.
void start(GTypeModule *module)
{
    static bool isStarted = false;
    if (std::exchange(isStarted, true)) {
        return;
    }
    g_type_module_use(module);
    if (gpointer dialogs = g_type_class_peek(g_type_from_name(dialogType))) {
        followDialogs(dialogs);
    } else {
        // The program asks for printers first. Or GTK 4 loads all modules when a program starts,
        // since its list of them is missing, or older than one of them, as in a system that was
        // restored from a backup. GTK's classes are made later.
        g_type_add_interface_check(nullptr, awaitDialogs);
    }
}
} // namespace

#if GTK_MAJOR_VERSION >= 4
KV_EXPORT void g_io_module_load(GIOModule *module)
{
    start(G_TYPE_MODULE(module));
}

KV_EXPORT void g_io_module_unload(GIOModule *) {}

KV_EXPORT char **g_io_module_query()
{
    char extensionPoint[] = "gtk-print-backend";
    char *names[] = {extensionPoint, nullptr};
    return g_strdupv(names);
}
#else
KV_EXPORT void pb_module_init(GTypeModule *module)
{
    start(module);
}

KV_EXPORT void pb_module_exit() {}

/// GTK's print backend; null for none.
KV_EXPORT gpointer pb_module_create()
{
    return nullptr;
}
#endif
