// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <gtk/gtk.h>

/// The property of the renderer, a GdkPaintable or null.
inline constexpr char paintableProperty[] = "paintable";

/// A cell renderer for GTK 4 that shows a paintable in the size that it was made for. GTK's own
/// one takes textures only, whose pixels it takes for units of the layout.
GtkCellRenderer *newPaintableCell();
