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

/// What shows pictures in a menu.
GtkCellRenderer *newCell();
/// The property that a cell of newCell() takes a picture with.
extern const char *const cellProperty;

/// A widget without a picture.
GtkWidget *newWidget();

/// Shows the picture in a widget of newWidget(); null for none.
void show(GtkWidget *widget, GtkVersions::Picture *picture);
} // namespace PanelPicture
