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

/// Shows the picture in an image.
void show(GtkWidget *image, GtkVersions::Picture *picture);
} // namespace PanelPicture
