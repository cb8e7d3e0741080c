// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gtk/GtkVersions.h"

#include <memory>
#include <string>

/// Pictures of the panel as GTK shows them.
namespace PanelPicture {
struct Free
{
    void operator()(GtkVersions::Picture *picture) const;
};
using Ref = std::unique_ptr<GtkVersions::Picture, Free>;

/// The picture that a PNG file in base64 has, at the scale of the widget's screen; null when it is
/// no picture.
Ref ofFile(const std::string &base64, GtkWidget *widget);

/// A widget without a picture.
GtkWidget *newWidget();

/// Shows the picture in a widget of newWidget(), in the size that it was made for.
void show(GtkWidget *widget, GtkVersions::Picture *picture);
} // namespace PanelPicture
