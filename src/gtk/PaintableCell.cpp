// SPDX-License-Identifier: Apache-2.0
#include "gtk/PaintableCell.h"

namespace {
struct PaintableCell
{
    GtkCellRenderer parent;
    GdkPaintable *paintable;
};
struct PaintableCellClass
{
    GtkCellRendererClass parent;
};
enum Property : guint {
    PaintableProperty = 1,
};

GObjectClass *parentOfCells()
{
    return G_OBJECT_CLASS(g_type_class_peek(GTK_TYPE_CELL_RENDERER));
}

/// As GTK shows pictures that cannot be chosen.
constexpr double greyOpacity = 0.5;

GdkPaintable *paintableIn(gpointer cell)
{
    return static_cast<PaintableCell *>(cell)->paintable;
}

void setCellProperty(GObject *cell, guint, const GValue *value, GParamSpec *)
{
    auto *self = reinterpret_cast<PaintableCell *>(cell);
    g_set_object(&self->paintable, static_cast<GdkPaintable *>(g_value_get_object(value)));
}

void getCellProperty(GObject *cell, guint, GValue *value, GParamSpec *)
{
    g_value_set_object(value, paintableIn(cell));
}

void finalizeCell(GObject *cell)
{
    g_clear_object(&reinterpret_cast<PaintableCell *>(cell)->paintable);
    parentOfCells()->finalize(cell);
}

void tellCellSize(GtkCellRenderer *cell, GtkOrientation orientation, int *smallest, int *natural)
{
    GdkPaintable *paintable = paintableIn(cell);
    int padding[2] = {};
    gtk_cell_renderer_get_padding(cell, &padding[0], &padding[1]);
    int size = 0;
    if (paintable) {
        size = orientation == GTK_ORIENTATION_HORIZONTAL
                   ? gdk_paintable_get_intrinsic_width(paintable)
                   : gdk_paintable_get_intrinsic_height(paintable);
    }
    *smallest = *natural = size + 2 * padding[orientation];
}

void tellCellWidth(GtkCellRenderer *cell, GtkWidget *, int *smallest, int *natural)
{
    tellCellSize(cell, GTK_ORIENTATION_HORIZONTAL, smallest, natural);
}

void tellCellHeight(GtkCellRenderer *cell, GtkWidget *, int *smallest, int *natural)
{
    tellCellSize(cell, GTK_ORIENTATION_VERTICAL, smallest, natural);
}

void drawCell(GtkCellRenderer *cell, GtkSnapshot *snapshot, GtkWidget *, const GdkRectangle *,
              const GdkRectangle *area, GtkCellRendererState)
{
    GdkPaintable *paintable = paintableIn(cell);
    if (!paintable) {
        return;
    }
    const int width = gdk_paintable_get_intrinsic_width(paintable);
    const int height = gdk_paintable_get_intrinsic_height(paintable);
    const int x = area->x + (area->width - width) / 2;
    const int y = area->y + (area->height - height) / 2;
    const graphene_point_t place = {float(x), float(y)};
    gtk_snapshot_save(snapshot);
    gtk_snapshot_translate(snapshot, &place);
    gtk_snapshot_push_opacity(snapshot, gtk_cell_renderer_get_sensitive(cell) ? 1.0 : greyOpacity);
    gdk_paintable_snapshot(paintable, snapshot, width, height);
    gtk_snapshot_pop(snapshot);
    gtk_snapshot_restore(snapshot);
}

void initCellClass(gpointer type, gpointer)
{
    auto *object = static_cast<GObjectClass *>(type);
    object->set_property = setCellProperty;
    object->get_property = getCellProperty;
    object->finalize = finalizeCell;
    auto *renderer = static_cast<GtkCellRendererClass *>(type);
    renderer->get_preferred_width = tellCellWidth;
    renderer->get_preferred_height = tellCellHeight;
    renderer->snapshot = drawCell;
    g_object_class_install_property(object, PaintableProperty,
                                    g_param_spec_object(paintableProperty, nullptr, nullptr,
                                                        GDK_TYPE_PAINTABLE, G_PARAM_READWRITE));
}

GType cellType()
{
    static const GType type = g_type_register_static_simple(
        GTK_TYPE_CELL_RENDERER, "KvPaintableCell", sizeof(PaintableCellClass), initCellClass,
        sizeof(PaintableCell), nullptr, GTypeFlags(0));
    return type;
}
} // namespace

GtkCellRenderer *newPaintableCell()
{
    return GTK_CELL_RENDERER(g_object_new(cellType(), nullptr));
}
