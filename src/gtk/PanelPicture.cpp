// SPDX-License-Identifier: Apache-2.0
#include "gtk/PanelPicture.h"

#include "gtk/GtkRef.h"

#if GTK_MAJOR_VERSION >= 4
#include "gtk/PaintableCell.h"
#endif

namespace {
GtkRef<GdkPixbuf> pixbufOf(const std::string &base64)
{
    gsize size = 0;
    g_autofree guchar *bytes = g_base64_decode(base64.c_str(), &size);
    const GtkRef<GdkPixbufLoader> loader(gdk_pixbuf_loader_new());
    const bool isWritten = gdk_pixbuf_loader_write(loader.get(), bytes, size, nullptr);
    const bool isClosed = gdk_pixbuf_loader_close(loader.get(), nullptr);
    GdkPixbuf *pixbuf = gdk_pixbuf_loader_get_pixbuf(loader.get());
    return isWritten && isClosed && pixbuf ? refTo(pixbuf) : nullptr;
}
} // namespace

#if GTK_MAJOR_VERSION >= 4
void PanelPicture::Free::operator()(GtkVersions::Picture *picture) const
{
    g_object_unref(picture);
}

PanelPicture::Ref PanelPicture::ofFile(const std::string &base64, GtkWidget *widget)
{
    const auto pixbuf = pixbufOf(base64);
    if (!pixbuf) {
        return nullptr;
    }
    // GTK takes a pixel of a texture for a unit of the layout.
    const GtkRef<GdkTexture> texture(gdk_texture_new_for_pixbuf(pixbuf.get()));
    const auto scale = float(gtk_widget_get_scale_factor(widget));
    const graphene_size_t size = {float(gdk_texture_get_width(texture.get())) / scale,
                                  float(gdk_texture_get_height(texture.get())) / scale};
    const graphene_rect_t bounds = {{0.0F, 0.0F}, size};
    GtkSnapshot *snapshot = gtk_snapshot_new();
    gtk_snapshot_append_texture(snapshot, texture.get(), &bounds);
    return Ref(gtk_snapshot_free_to_paintable(snapshot, &size));
}

GtkCellRenderer *PanelPicture::newCell()
{
    return newPaintableCell();
}

const char *const PanelPicture::cellProperty = paintableProperty;

GtkWidget *PanelPicture::newWidget()
{
    GtkWidget *widget = gtk_picture_new();
    gtk_picture_set_can_shrink(GTK_PICTURE(widget), FALSE);
    return widget;
}

void PanelPicture::show(GtkWidget *widget, GtkVersions::Picture *picture)
{
    gtk_picture_set_paintable(GTK_PICTURE(widget), picture);
}
#else
void PanelPicture::Free::operator()(GtkVersions::Picture *picture) const
{
    cairo_surface_destroy(picture);
}

PanelPicture::Ref PanelPicture::ofFile(const std::string &base64, GtkWidget *widget)
{
    const auto pixbuf = pixbufOf(base64);
    const int scale = gtk_widget_get_scale_factor(widget);
    return Ref(pixbuf ? gdk_cairo_surface_create_from_pixbuf(pixbuf.get(), scale, nullptr)
                      : nullptr);
}

GtkCellRenderer *PanelPicture::newCell()
{
    return gtk_cell_renderer_pixbuf_new();
}

const char *const PanelPicture::cellProperty = "surface";

GtkWidget *PanelPicture::newWidget()
{
    return gtk_image_new();
}

void PanelPicture::show(GtkWidget *widget, GtkVersions::Picture *picture)
{
    gtk_image_set_from_surface(GTK_IMAGE(widget), picture);
}
#endif
