// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gtk/GtkRef.h"
#include "gtk/GtkVersions.h"

#include <functional>

/// Waits until a window that has been mapped is on the screen.
class PaintWatch
{
public:
    /// @param window has to be mapped.
    /// @param painted is called once, when the window has been painted, or when it has not been for
    ///        half a second; may delete this object.
    PaintWatch(GtkWidget *window, std::function<void()> painted);
    ~PaintWatch();
    PaintWatch(const PaintWatch &) = delete;
    PaintWatch &operator=(const PaintWatch &) = delete;

private:
    void end();
    void tell();

    GtkRef<GdkFrameClock> mClock;
    std::function<void()> mPainted;
    guint mPatience = 0;
};
