// SPDX-License-Identifier: Apache-2.0

// A program with GTK's print dialog, worked by lines on standard input. A line may have several
// commands, separated by ";", with nothing happening between them:
//
//   list             asks GTK for all printers
//   open PRINTER     makes a dialog that selects the printer, and shows it
//   again            shows the dialog that has been hidden
//   hide             hides it
//   destroy          destroys the oldest dialog that is left
//   printer NAME     selects another printer
//   paper NAME W H   chooses a paper: its PPD name and its size in points
//   click TITLE      clicks the check box
//   tick NUMBER      clicks the panel's check box of that number, counted from 0
//   tab              turns to the panel
//   menu             opens the menu of presets
//   where NUMBER     writes where in the window the panel's check box of that number is, in pixels
//   count NUMBER     steps the count up to this one
//   preset NAME      chooses from the menu of presets
//   respond NUMBER   sends the dialog's response
//   state            writes what there is as one line, separated by tabs
//   times            writes how long it took from the line "open" until the newest dialog was on
//                    the screen, how much of the processor's time that took, and how long it took
//                    until the panel was on the screen as well, in microseconds; 0 for not yet
//
// Each line but "state", "times" and "where" is answered by an empty line when it is done.

#include "gtk/GtkVersions.h"

#include <cstdlib>
#include <ctime>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {
std::vector<GtkWidget *> dialogs;
std::string responses;
std::string wantedPrinter;

gint64 processorTime()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return gint64(time.tv_sec) * G_USEC_PER_SEC + time.tv_nsec / 1'000;
}

/// What the newest dialog has taken, in microseconds; 0 for not yet.
class Times
{
public:
    /// Notes that the dialog has been painted.
    void noteFrame(bool hasPanel)
    {
        const gint64 now = g_get_monotonic_time() - mStart;
        if (mUntilSeen == 0) {
            mUntilSeen = now;
            mProcessorUntilSeen = processorTime() - mProcessorStart;
        }
        if (mUntilFilled == 0 && hasPanel) {
            mUntilFilled = now;
        }
    }

    std::string text() const
    {
        std::ostringstream text;
        text << mUntilSeen << ' ' << mProcessorUntilSeen << ' ' << mUntilFilled;
        return text.str();
    }

private:
    gint64 mStart = g_get_monotonic_time();
    gint64 mProcessorStart = processorTime();
    gint64 mUntilSeen = 0;
    gint64 mProcessorUntilSeen = 0;
    gint64 mUntilFilled = 0;
};
Times times;

void visit(GtkWidget *widget, const std::function<void(GtkWidget *)> &visitor)
{
    visitor(widget);
    GtkVersions::forEachChild(widget, [&visitor](GtkWidget *child) { visit(child, visitor); });
}

GtkWidget *dialog()
{
    return dialogs.empty() ? nullptr : dialogs.back();
}

std::string textOf(GObject *object, const char *property)
{
    char *text = nullptr;
    g_object_get(object, property, &text, nullptr);
    const std::string copy = text ? text : "";
    g_free(text);
    return copy;
}

/// Calls the visitor with all widgets of a type that can be seen.
void forEachSeen(GType type, const std::function<void(GtkWidget *)> &visitor)
{
    if (dialog()) {
        visit(dialog(), [type, &visitor](GtkWidget *widget) {
            if (g_type_is_a(G_OBJECT_TYPE(widget), type)) {
                visitor(widget);
            }
        });
    }
}

/// Selects the row of GTK's list of printers, as a click does.
void selectPrinter(const std::string &name)
{
    forEachSeen(GTK_TYPE_TREE_VIEW, [&name](GtkWidget *list) {
        GtkTreeModel *rows = gtk_tree_view_get_model(GTK_TREE_VIEW(list));
        GtkTreeIter row;
        for (gboolean has = rows && gtk_tree_model_get_iter_first(rows, &row); has;
             has = gtk_tree_model_iter_next(rows, &row)) {
            for (int column = 0; column < gtk_tree_model_get_n_columns(rows); ++column) {
                GValue value = G_VALUE_INIT;
                gtk_tree_model_get_value(rows, &row, column, &value);
                if (G_VALUE_HOLDS_STRING(&value) &&
                    g_strcmp0(g_value_get_string(&value), name.c_str()) == 0) {
                    gtk_tree_selection_select_iter(gtk_tree_view_get_selection(GTK_TREE_VIEW(list)),
                                                   &row);
                }
                g_value_unset(&value);
            }
        }
    });
#if GTK_MAJOR_VERSION >= 4
    forEachSeen(GTK_TYPE_COLUMN_VIEW, [&name](GtkWidget *list) {
        GtkSelectionModel *rows = gtk_column_view_get_model(GTK_COLUMN_VIEW(list));
        for (guint i = 0; i < g_list_model_get_n_items(G_LIST_MODEL(rows)); ++i) {
            gpointer row = g_list_model_get_item(G_LIST_MODEL(rows), i);
            if (GTK_IS_PRINTER(row) && gtk_printer_get_name(GTK_PRINTER(row)) == name) {
                gtk_selection_model_select_item(rows, i, TRUE);
            }
            g_object_unref(row);
        }
    });
#endif
}

bool isWantedSelected()
{
    GtkPrinter *selected =
        dialog() ? gtk_print_unix_dialog_get_selected_printer(GTK_PRINT_UNIX_DIALOG(dialog()))
                 : nullptr;
    return selected && gtk_printer_get_name(selected) == wantedPrinter;
}

/// Selects the printer that is wanted, as soon as GTK knows it.
gboolean selectWanted(gpointer)
{
    constexpr guint pollMs = 20;
    if (dialog() && !isWantedSelected()) {
        selectPrinter(wantedPrinter);
        g_timeout_add(pollMs, selectWanted, nullptr);
    }
    return G_SOURCE_REMOVE;
}

void destroyOldest()
{
    GtkWidget *oldest = dialogs.front();
    dialogs.erase(dialogs.begin());
    GtkVersions::destroyWindow(oldest);
}

void choosePaper(std::istringstream &line)
{
    std::string name;
    double width = 0;
    double height = 0;
    line >> name >> width >> height;
    GtkPageSetup *page = gtk_page_setup_new();
    GtkPaperSize *paper = gtk_paper_size_new_from_ppd(name.c_str(), name.c_str(), width, height);
    gtk_page_setup_set_paper_size(page, paper);
    gtk_paper_size_free(paper);
    gtk_print_unix_dialog_set_page_setup(GTK_PRINT_UNIX_DIALOG(dialog()), page);
    g_object_unref(page);
}

void choosePreset(const std::string &name)
{
    forEachSeen(GTK_TYPE_COMBO_BOX, [&name](GtkWidget *menu) {
        GtkTreeModel *rows = gtk_combo_box_get_model(GTK_COMBO_BOX(menu));
        GtkTreeIter row;
        for (gboolean has = rows && gtk_tree_model_get_iter_first(rows, &row); has;
             has = gtk_tree_model_iter_next(rows, &row)) {
            GValue value = G_VALUE_INIT;
            if (gtk_tree_model_get_n_columns(rows) > 1) {
                gtk_tree_model_get_value(rows, &row, 1, &value);
            }
            if (G_VALUE_HOLDS_STRING(&value) &&
                g_strcmp0(g_value_get_string(&value), name.c_str()) == 0) {
                gtk_combo_box_set_active_iter(GTK_COMBO_BOX(menu), &row);
            }
            g_value_unset(&value);
        }
    });
}

/// The tab that is not GTK's, which GTK puts behind its first two; null when there is none.
GtkWidget *panelIn(GtkWidget *notebook)
{
    constexpr int place = 2;
    GtkWidget *page = gtk_notebook_get_nth_page(GTK_NOTEBOOK(notebook), place);
    return GTK_IS_SCROLLED_WINDOW(page) ? page : nullptr;
}

bool isOnPanel(GtkWidget *widget)
{
    GtkWidget *notebook = gtk_widget_get_ancestor(widget, GTK_TYPE_NOTEBOOK);
    GtkWidget *panel = notebook ? panelIn(notebook) : nullptr;
    return panel && gtk_widget_is_ancestor(widget, panel);
}

/// The texts of the alerts that are shown.
std::vector<std::string> alerts()
{
    std::vector<std::string> texts;
    GList *windows = gtk_window_list_toplevels();
    for (const GList *window = windows; window; window = window->next) {
        if (GTK_IS_MESSAGE_DIALOG(window->data) &&
            gtk_widget_get_visible(GTK_WIDGET(window->data))) {
            texts.push_back(textOf(G_OBJECT(window->data), "text"));
        }
    }
    g_list_free(windows);
    return texts;
}

/// What has the focus: the text of a check box, else the type of the innermost control that users
/// know.
std::string focus()
{
    GtkWidget *widget = gtk_window_get_focus(GTK_WINDOW(dialog()));
    if (widget && GTK_IS_CHECK_BUTTON(widget)) {
        return textOf(G_OBJECT(widget), "label");
    }
    for (const GType type : {GTK_TYPE_SPIN_BUTTON, GTK_TYPE_COMBO_BOX}) {
        if (widget &&
            (g_type_is_a(G_OBJECT_TYPE(widget), type) || gtk_widget_get_ancestor(widget, type))) {
            return g_type_name(type);
        }
    }
    return widget ? G_OBJECT_TYPE_NAME(widget) : "";
}

std::string state()
{
    std::ostringstream text;
    text << "responses=" << responses;
    forEachSeen(GTK_TYPE_NOTEBOOK, [&text](GtkWidget *notebook) {
        for (int i = 0; i < gtk_notebook_get_n_pages(GTK_NOTEBOOK(notebook)); ++i) {
            GtkWidget *page = gtk_notebook_get_nth_page(GTK_NOTEBOOK(notebook), i);
            const char *title = gtk_notebook_get_tab_label_text(GTK_NOTEBOOK(notebook), page);
            if (gtk_widget_get_visible(page)) {
                text << "\ttab:" << (title ? title : "");
            }
        }
    });
    forEachSeen(GTK_TYPE_CHECK_BUTTON, [&text](GtkWidget *box) {
        gboolean isTicked = FALSE;
        g_object_get(box, "active", &isTicked, nullptr);
        if (isOnPanel(box)) {
            text << "\tbox:" << textOf(G_OBJECT(box), "label") << (isTicked ? " on" : " off")
                 << (gtk_widget_is_sensitive(box) ? "" : " grey");
        }
    });
    forEachSeen(GTK_TYPE_SPIN_BUTTON, [&text](GtkWidget *count) {
        if (isOnPanel(count)) {
            text << "\tcount:" << gtk_spin_button_get_value_as_int(GTK_SPIN_BUTTON(count))
                 << (gtk_widget_is_sensitive(count) ? "" : " grey");
        }
    });
    forEachSeen(GTK_TYPE_COMBO_BOX, [&text](GtkWidget *menu) {
        GtkTreeIter row;
        if (isOnPanel(menu) && gtk_combo_box_get_active_iter(GTK_COMBO_BOX(menu), &row)) {
            char *name = nullptr;
            gtk_tree_model_get(gtk_combo_box_get_model(GTK_COMBO_BOX(menu)), &row, 1, &name, -1);
            text << "\tpreset:" << name;
            g_free(name);
        }
    });
    forEachSeen(GTK_TYPE_LABEL, [&text](GtkWidget *label) {
        if (isOnPanel(label) && gtk_widget_get_visible(label)) {
            text << "\tlabel:" << gtk_label_get_text(GTK_LABEL(label));
        }
    });
    for (const std::string &alert : alerts()) {
        text << "\talert:" << alert;
    }
    if (dialog()) {
        text << "\tfocus:" << focus();
        GtkPrintSettings *settings =
            gtk_print_unix_dialog_get_settings(GTK_PRINT_UNIX_DIALOG(dialog()));
        gtk_print_settings_foreach(
            settings,
            [](const char *key, const char *value, gpointer data) {
                *static_cast<std::ostringstream *>(data) << '\t' << key << '=' << value;
            },
            &text);
        g_object_unref(settings);
    }
    return text.str();
}

void click(GtkWidget *box)
{
    if (box && gtk_widget_is_sensitive(box)) {
        gboolean isTicked = FALSE;
        g_object_get(box, "active", &isTicked, nullptr);
        g_object_set(box, "active", gboolean(!isTicked), nullptr);
    }
}

void clickBox(const std::string &title)
{
    forEachSeen(GTK_TYPE_CHECK_BUTTON, [&title](GtkWidget *box) {
        if (textOf(G_OBJECT(box), "label") == title) {
            click(box);
        }
    });
}

/// The panel's check box of that number; null when there is none.
GtkWidget *boxAt(int number)
{
    GtkWidget *found = nullptr;
    forEachSeen(GTK_TYPE_CHECK_BUTTON, [&found, &number](GtkWidget *box) {
        if (isOnPanel(box) && number-- == 0) {
            found = box;
        }
    });
    return found;
}

/// Notes what a frame has brought to the screen.
void noteFrame(GdkFrameClock *, gpointer made)
{
    if (made == dialog() && gtk_widget_get_mapped(dialog())) {
        times.noteFrame(boxAt(0));
    }
}

/// Has GTK select the printer that is wanted as soon as it has found it.
void selectWantedFirst(GtkPrintUnixDialog *made)
{
    GtkPrintSettings *settings = gtk_print_settings_new();
    gtk_print_settings_set_printer(settings, wantedPrinter.c_str());
    gtk_print_unix_dialog_set_settings(made, settings);
    g_object_unref(settings);
}

void open(const std::string &printer)
{
    times = Times();
    GtkWidget *made = gtk_print_unix_dialog_new("Print", nullptr);
    dialogs.push_back(made);
    gtk_print_unix_dialog_set_manual_capabilities(
        GTK_PRINT_UNIX_DIALOG(made),
        GtkPrintCapabilities(GTK_PRINT_CAPABILITY_COPIES | GTK_PRINT_CAPABILITY_GENERATE_PDF));
    const auto respond = +[](GtkDialog *, int response, gpointer) {
        responses += std::to_string(response) + ' ';
    };
    g_signal_connect(made, "response", G_CALLBACK(respond), nullptr);
    wantedPrinter = printer;
    selectWantedFirst(GTK_PRINT_UNIX_DIALOG(made));
    gtk_window_present(GTK_WINDOW(made));
    g_signal_connect(gtk_widget_get_frame_clock(made), "after-paint", G_CALLBACK(noteFrame), made);
    selectWanted(nullptr);
}

std::string placeOf(GtkWidget *box)
{
    constexpr double inside = 12;
    double x = inside;
    double y = inside;
#if GTK_MAJOR_VERSION >= 4
    double left = 0;
    double top = 0;
    gtk_native_get_surface_transform(gtk_widget_get_native(box), &left, &top);
    gtk_widget_translate_coordinates(box, dialog(), x, y, &x, &y);
    x += left;
    y += top;
#else
    int left = 0;
    int top = 0;
    gtk_widget_translate_coordinates(box, dialog(), 0, 0, &left, &top);
    x += left;
    y += top;
#endif
    const int scale = gtk_widget_get_scale_factor(box);
    return std::to_string(int(x) * scale) + ' ' + std::to_string(int(y) * scale);
}

void turnToPanel()
{
    forEachSeen(GTK_TYPE_NOTEBOOK, [](GtkWidget *notebook) {
        if (GtkWidget *panel = panelIn(notebook)) {
            gtk_notebook_set_current_page(GTK_NOTEBOOK(notebook),
                                          gtk_notebook_page_num(GTK_NOTEBOOK(notebook), panel));
        }
    });
}

void openMenu()
{
    forEachSeen(GTK_TYPE_COMBO_BOX, [](GtkWidget *menu) {
        if (isOnPanel(menu)) {
            gtk_combo_box_popup(GTK_COMBO_BOX(menu));
        }
    });
}

/// Steps from where the count is to that one, as a user does who holds the arrow down.
void stepTo(int count)
{
    forEachSeen(GTK_TYPE_SPIN_BUTTON, [count](GtkWidget *field) {
        auto *button = GTK_SPIN_BUTTON(field);
        while (isOnPanel(field) && gtk_spin_button_get_value_as_int(button) < count) {
            gtk_spin_button_spin(button, GTK_SPIN_STEP_FORWARD, 1.0);
        }
    });
}

std::string run(const std::string &text)
{
    std::istringstream line(text);
    std::string command;
    std::string rest;
    line >> command >> std::ws;
    if (command == "paper") {
        choosePaper(line);
        return {};
    }
    std::getline(line, rest);
    if (command == "list") {
        gtk_enumerate_printers([](GtkPrinter *, gpointer) { return FALSE; }, nullptr, nullptr,
                               TRUE);
    } else if (command == "open") {
        open(rest);
    } else if (command == "again") {
        gtk_window_present(GTK_WINDOW(dialog()));
    } else if (command == "hide") {
        gtk_widget_set_visible(dialog(), FALSE);
    } else if (command == "destroy") {
        destroyOldest();
    } else if (command == "printer") {
        wantedPrinter = rest;
        selectWanted(nullptr);
    } else if (command == "click") {
        clickBox(rest);
    } else if (command == "tick") {
        click(boxAt(std::atoi(rest.c_str())));
    } else if (command == "tab") {
        turnToPanel();
    } else if (command == "menu") {
        openMenu();
    } else if (command == "where") {
        GtkWidget *box = boxAt(std::atoi(rest.c_str()));
        return box ? placeOf(box) : std::string();
    } else if (command == "count") {
        stepTo(std::atoi(rest.c_str()));
    } else if (command == "preset") {
        choosePreset(rest);
    } else if (command == "respond") {
        gtk_dialog_response(GTK_DIALOG(dialog()), std::atoi(rest.c_str()));
    } else if (command == "state") {
        return state();
    } else if (command == "times") {
        return times.text();
    }
    return {};
}

/// The answers of a line's commands, one behind the other.
std::string runAll(const std::string &line)
{
    std::istringstream commands(line);
    std::string answers;
    for (std::string command; std::getline(commands, command, ';');) {
        answers += run(command);
    }
    return answers;
}

gboolean takeLine(GIOChannel *input, GIOCondition, gpointer loop)
{
    char *line = nullptr;
    const GIOStatus status = g_io_channel_read_line(input, &line, nullptr, nullptr, nullptr);
    if (status == G_IO_STATUS_EOF || !line) {
        g_main_loop_quit(static_cast<GMainLoop *>(loop));
        return G_SOURCE_REMOVE;
    }
    std::cout << runAll(g_strchomp(line)) << std::endl;
    g_free(line);
    return G_SOURCE_CONTINUE;
}
} // namespace

int main()
{
#if GTK_MAJOR_VERSION >= 4
    gtk_init();
#else
    gtk_init(nullptr, nullptr);
#endif
    GMainLoop *loop = g_main_loop_new(nullptr, FALSE);
    GIOChannel *input = g_io_channel_unix_new(0);
    g_io_add_watch(input, GIOCondition(G_IO_IN | G_IO_HUP), takeLine, loop);
    g_main_loop_run(loop);
    while (!dialogs.empty()) {
        destroyOldest();
    }
    g_io_channel_unref(input);
    g_main_loop_unref(loop);
    return 0;
}
