// SPDX-License-Identifier: Apache-2.0
#include "gtk/OptionTab.h"

#include "gtk/FailureText.h"
#include "gtk/PanelPicture.h"

#include <algorithm>

namespace {
constexpr int margin = 18;
constexpr int columnSpacing = 24;
constexpr int rowSpacing = 6;
/// Of what belongs to a check box, about as much as the box in front of its text.
constexpr int indent = 24;

/// The columns of the menu of presets.
enum PresetColumn {
    TagColumn,
    NameColumn,
    EnabledColumn,
    PictureColumn,
    PresetColumns,
};

GVariant *request(const char *command, const char *member, GVariant *value)
{
    GVariantDict members;
    g_variant_dict_init(&members, nullptr);
    g_variant_dict_insert(&members, "cmd", "s", command);
    g_variant_dict_insert_value(&members, member, value);
    return g_variant_dict_end(&members);
}

/// The names of all controls, which tell whether other widgets are needed.
std::string controlsOf(const PanelAnswer &look)
{
    std::string names;
    for (gsize i = 0; i < look.count("boxes"); ++i) {
        names += look.element("boxes", i).text("control") + ' ';
    }
    for (const char *member : {"count", "presets", "preview"}) {
        names += look.object(member).text("control") + ' ';
    }
    return names + std::to_string(look.object("presets").count("items"));
}

GtkWidget *newBox(GtkOrientation orientation, int spacing)
{
    return gtk_box_new(orientation, spacing);
}

void setTip(GtkWidget *widget, const PanelAnswer &control)
{
    const std::string tip = control.text("tip");
    gtk_widget_set_tooltip_text(widget, tip.empty() ? nullptr : tip.c_str());
}
} // namespace

OptionTab::OptionTab(Act act)
    : mAct(std::move(act))
    , mWidget(refTo(GtkVersions::newScrolledWindow()))
{
    auto *window = GTK_SCROLLED_WINDOW(mWidget.get());
    // The dialog keeps its size whatever is shown.
    gtk_scrolled_window_set_policy(window, GTK_POLICY_AUTOMATIC, GTK_POLICY_AUTOMATIC);
    gtk_widget_set_visible(mWidget.get(), TRUE);
}

OptionTab::~OptionTab()
{
    forgetWidgets();
}

void OptionTab::forgetWidgets()
{
    for (const Box &box : mBoxes) {
        g_signal_handlers_disconnect_by_data(box.widget.get(), this);
    }
    mBoxes.clear();
    for (GtkRef<GtkWidget> *widget : {&mCount, &mCaption, &mPresets, &mPreview}) {
        if (*widget) {
            g_signal_handlers_disconnect_by_data(widget->get(), this);
        }
        widget->reset();
    }
    mBuilt.clear();
}

void OptionTab::setContent(GtkWidget *content)
{
    forgetWidgets();
    for (const auto set : {gtk_widget_set_margin_start, gtk_widget_set_margin_end,
                           gtk_widget_set_margin_top, gtk_widget_set_margin_bottom}) {
        set(content, margin);
    }
    GtkVersions::showAll(content);
    GtkVersions::setScrolled(mWidget.get(), content);
    gtk_widget_set_sensitive(mWidget.get(), TRUE);
}

void OptionTab::showFailure()
{
    GtkWidget *text = gtk_label_new(failureText());
    g_object_set(text, "wrap", TRUE, nullptr);
    setContent(text);
}

void OptionTab::suspend()
{
    gtk_widget_set_sensitive(mWidget.get(), FALSE);
}

void OptionTab::show(const PanelAnswer &look)
{
    mIsUpdating = true;
    if (const std::string controls = controlsOf(look); mBuilt != controls) {
        build(look);
        mBuilt = controls;
    }
    update(look);
    gtk_widget_set_sensitive(mWidget.get(), TRUE);
    mIsUpdating = false;
}

void OptionTab::build(const PanelAnswer &look)
{
    GtkWidget *columns = newBox(GTK_ORIENTATION_HORIZONTAL, columnSpacing);
    GtkWidget *pictures = newBox(GTK_ORIENTATION_VERTICAL, 2 * rowSpacing);
    // The menu has all the room that the boxes leave, whatever is chosen in it.
    gtk_widget_set_hexpand(pictures, TRUE);
    setContent(columns);
    GtkVersions::append(columns, buildBoxes(look));
    GtkVersions::append(columns, pictures);
    if (look.has("presets")) {
        buildPresets(look.object("presets"), pictures);
    }
    if (look.has("preview")) {
        mPreview = refTo(PanelPicture::newWidget());
        gtk_widget_set_halign(mPreview.get(), GTK_ALIGN_START);
        gtk_widget_set_valign(mPreview.get(), GTK_ALIGN_START);
        GtkVersions::append(pictures, mPreview.get());
    }
    GtkVersions::showAll(columns);
}

GtkWidget *OptionTab::buildBoxes(const PanelAnswer &look)
{
    GtkWidget *rows = newBox(GTK_ORIENTATION_VERTICAL, rowSpacing);
    const PanelAnswer count = look.object("count");
    for (gsize i = 0; i < look.count("boxes"); ++i) {
        const PanelAnswer box = look.element("boxes", i);
        GtkWidget *check = gtk_check_button_new_with_label(box.text("name").c_str());
        const auto toggled = +[](GtkWidget *check, gpointer tab) {
            static_cast<OptionTab *>(tab)->actOnBox(check);
        };
        g_signal_connect(check, "toggled", G_CALLBACK(toggled), this);
        mBoxes.push_back({box.text("control"), refTo(check)});
        GtkVersions::append(rows, check);
        if (!count.text("control").empty() && count.text("box") == box.text("control")) {
            GtkVersions::append(rows, buildCount(count));
        }
    }
    return rows;
}

GtkWidget *OptionTab::buildCount(const PanelAnswer &count)
{
    GtkWidget *row = newBox(GTK_ORIENTATION_HORIZONTAL, rowSpacing);
    gtk_widget_set_margin_start(row, indent);
    const auto largest = std::max<gint64>(count.number("largest"), 1);
    const auto smallest = std::min(count.number("smallest"), largest);
    mCount = refTo(gtk_spin_button_new_with_range(double(smallest), double(largest), 1.0));
    GtkVersions::setAccessibleName(mCount.get(), count.text("name").c_str());
    mCaption = refTo(gtk_label_new(count.text("caption").c_str()));
    const auto changed = +[](GtkWidget *, gpointer tab) {
        static_cast<OptionTab *>(tab)->actOnCount();
    };
    g_signal_connect(mCount.get(), "value-changed", G_CALLBACK(changed), this);
    GtkVersions::append(row, mCount.get());
    GtkVersions::append(row, mCaption.get());
    return row;
}

void OptionTab::buildPresets(const PanelAnswer &presets, GtkWidget *column)
{
    GtkListStore *items = gtk_list_store_new(PresetColumns, G_TYPE_INT, G_TYPE_STRING,
                                             G_TYPE_BOOLEAN, GtkVersions::pictureType());
    for (gsize i = 0; i < presets.count("items"); ++i) {
        GtkTreeIter row;
        gtk_list_store_append(items, &row);
    }
    mPresets = refTo(gtk_combo_box_new_with_model(GTK_TREE_MODEL(items)));
    g_object_unref(items);
    auto *layout = GTK_CELL_LAYOUT(mPresets.get());
    GtkCellRenderer *picture = PanelPicture::newCell();
    GtkCellRenderer *name = gtk_cell_renderer_text_new();
    // The dialog may be narrower than the longest name.
    g_object_set(name, "ellipsize", PANGO_ELLIPSIZE_END, "xpad", 2 * rowSpacing, nullptr);
    gtk_cell_layout_pack_start(layout, picture, FALSE);
    gtk_cell_layout_pack_start(layout, name, TRUE);
    gtk_cell_layout_set_attributes(layout, picture, PanelPicture::cellProperty, PictureColumn,
                                   "sensitive", EnabledColumn, nullptr);
    gtk_cell_layout_set_attributes(layout, name, "text", NameColumn, "sensitive", EnabledColumn,
                                   nullptr);
    const auto changed = +[](GtkWidget *, gpointer tab) {
        static_cast<OptionTab *>(tab)->actOnPreset();
    };
    g_signal_connect(mPresets.get(), "changed", G_CALLBACK(changed), this);
    GtkVersions::append(column, mPresets.get());
}

void OptionTab::update(const PanelAnswer &look)
{
    for (gsize i = 0; i < mBoxes.size(); ++i) {
        const PanelAnswer box = look.element("boxes", i);
        GtkWidget *widget = mBoxes[i].widget.get();
        g_object_set(widget, "active", gboolean(box.flag("ticked")), "label",
                     box.text("name").c_str(), nullptr);
        gtk_widget_set_sensitive(widget, box.flag("enabled"));
        setTip(widget, box);
    }
    if (mCount) {
        updateCount(look.object("count"));
    }
    if (mPresets) {
        updatePresets(look.object("presets"));
    }
    if (mPreview) {
        updatePreview(look.object("preview"));
    }
}

void OptionTab::updateCount(const PanelAnswer &count)
{
    gtk_spin_button_set_value(GTK_SPIN_BUTTON(mCount.get()),
                              g_ascii_strtod(count.text("text").c_str(), nullptr));
    for (GtkWidget *widget : {mCount.get(), mCaption.get()}) {
        gtk_widget_set_sensitive(widget, count.flag("enabled"));
        setTip(widget, count);
    }
}

void OptionTab::updatePresets(const PanelAnswer &presets)
{
    auto *menu = GTK_COMBO_BOX(mPresets.get());
    auto *items = GTK_LIST_STORE(gtk_combo_box_get_model(menu));
    std::vector<std::string> names;
    int selected = -1;
    GtkTreeIter row;
    gtk_tree_model_get_iter_first(GTK_TREE_MODEL(items), &row);
    for (gsize i = 0; i < presets.count("items"); ++i) {
        const PanelAnswer item = presets.element("items", i);
        const auto picture = PanelPicture::ofFile(item.text("picture"), mPresets.get());
        gtk_list_store_set(items, &row, TagColumn, int(item.number("tag")), NameColumn,
                           item.text("name").c_str(), EnabledColumn, gboolean(item.flag("enabled")),
                           PictureColumn, picture.get(), -1);
        gtk_tree_model_iter_next(GTK_TREE_MODEL(items), &row);
        names.push_back(item.text("name"));
        if (item.flag("selected")) {
            selected = int(i);
        }
    }
    gtk_combo_box_set_active(menu, selected);
    gtk_widget_set_sensitive(mPresets.get(), presets.flag("enabled"));
    // GTK does not tell what a menu with pictures shows.
    const std::string name =
        presets.text("name") + (selected < 0 ? "" : ", " + names[gsize(selected)]);
    GtkVersions::setAccessibleName(mPresets.get(), name.c_str());
    GtkVersions::setAccessibleItems(menu, names);
    setTip(mPresets.get(), presets);
}

void OptionTab::updatePreview(const PanelAnswer &preview)
{
    const auto picture = PanelPicture::ofFile(preview.text("picture"), mPreview.get());
    PanelPicture::show(mPreview.get(), picture.get());
    GtkVersions::setAccessibleName(mPreview.get(), preview.text("name").c_str());
    setTip(mPreview.get(), preview);
}

void OptionTab::actOnBox(GtkWidget *check)
{
    const auto box = std::find_if(mBoxes.begin(), mBoxes.end(),
                                  [check](const Box &box) { return box.widget.get() == check; });
    if (!mIsUpdating && box != mBoxes.end()) {
        mAct(request("click", "control", g_variant_new_string(box->control.c_str())));
    }
}

void OptionTab::actOnCount()
{
    if (!mIsUpdating) {
        const int count = gtk_spin_button_get_value_as_int(GTK_SPIN_BUTTON(mCount.get()));
        mAct(request("type", "text", g_variant_new_string(std::to_string(count).c_str())));
    }
}

void OptionTab::actOnPreset()
{
    auto *menu = GTK_COMBO_BOX(mPresets.get());
    GtkTreeIter item;
    if (!mIsUpdating && gtk_combo_box_get_active_iter(menu, &item)) {
        int tag = 0;
        gtk_tree_model_get(gtk_combo_box_get_model(menu), &item, TagColumn, &tag, -1);
        mAct(request("preset", "tag", g_variant_new_int64(tag)));
    }
}
