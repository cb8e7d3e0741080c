// SPDX-License-Identifier: Apache-2.0
#include "gtk/PaintWatch.h"

namespace {
/// A window that nobody can see may never be painted.
constexpr guint longestUnseenMs = 500;
} // namespace

PaintWatch::PaintWatch(GtkWidget *window, std::function<void()> painted)
    : mClock(refTo(gtk_widget_get_frame_clock(window)))
    , mPainted(std::move(painted))
{
    const auto hasPainted = +[](GdkFrameClock *, gpointer self) {
        static_cast<PaintWatch *>(self)->tell();
    };
    const auto giveUp = +[](gpointer self) {
        auto *watch = static_cast<PaintWatch *>(self);
        watch->mPatience = 0;
        watch->tell();
        return gboolean(G_SOURCE_REMOVE);
    };
    g_signal_connect(mClock.get(), "after-paint", G_CALLBACK(hasPainted), this);
    mPatience = g_timeout_add(longestUnseenMs, giveUp, this);
}

PaintWatch::~PaintWatch()
{
    end();
}

void PaintWatch::end()
{
    g_signal_handlers_disconnect_by_data(mClock.get(), this);
    if (mPatience != 0) {
        g_source_remove(mPatience);
        mPatience = 0;
    }
}

void PaintWatch::tell()
{
    end();
    const std::function<void()> painted = std::move(mPainted);
    painted();
}
