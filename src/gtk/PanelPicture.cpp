// SPDX-License-Identifier: Apache-2.0
#include "gtk/PanelPicture.h"

#include "gtk/GtkRef.h"

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

PanelPicture::Ref PanelPicture::ofFile(const std::string &base64, GtkWidget *)
{
    const auto pixbuf = pixbufOf(base64);
    return Ref(pixbuf ? gdk_texture_new_for_pixbuf(pixbuf.get()) : nullptr);
}

void PanelPicture::show(GtkWidget *image, GtkVersions::Picture *picture)
{
    gtk_image_set_from_paintable(GTK_IMAGE(image), picture ? GDK_PAINTABLE(picture) : nullptr);
    const int size = picture ? gdk_texture_get_width(picture) : -1;
    gtk_image_set_pixel_size(GTK_IMAGE(image), size / gtk_widget_get_scale_factor(image));
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

void PanelPicture::show(GtkWidget *image, GtkVersions::Picture *picture)
{
    gtk_image_set_from_surface(GTK_IMAGE(image), picture);
}
#endif
