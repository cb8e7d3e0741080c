// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gtk/GtkRef.h"
#include "gtk/GtkVersions.h"
#include "gtk/PanelAnswer.h"

#include <functional>
#include <string>
#include <vector>

/// The tab in the print dialog: shows what a panel looks like with GTK's widgets, and tells what
/// the user does with them.
class OptionTab
{
public:
    /// Told a request of the service ("a{sv}", floating) for what the user has done.
    using Act = std::function<void(GVariant *request)>;

    explicit OptionTab(Act act);
    ~OptionTab();
    OptionTab(const OptionTab &) = delete;
    OptionTab &operator=(const OptionTab &) = delete;

    /// What to put into the dialog, owned by this object.
    GtkWidget *widget() const { return mWidget.get(); }

    /// Shows a panel, the answer to "look".
    void show(const PanelAnswer &look);
    /// Keeps what is shown, but lets nobody use it.
    void suspend();
    /// Says that the options cannot be shown.
    void showFailure();

private:
    struct Box
    {
        std::string control;
        GtkRef<GtkWidget> widget;
    };

    void build(const PanelAnswer &look);
    GtkWidget *buildBoxes(const PanelAnswer &look);
    GtkWidget *buildCount(const PanelAnswer &count);
    void buildPresets(const PanelAnswer &presets, GtkWidget *column);
    void update(const PanelAnswer &look);
    void updateCount(const PanelAnswer &count);
    void updatePresets(const PanelAnswer &presets);
    void updatePreview(const PanelAnswer &preview);
    /// Takes away what there is, and puts this there; null for nothing.
    void setContent(GtkWidget *content);
    void forgetWidgets();

    void actOnBox(GtkWidget *box);
    void actOnCount();
    void actOnPreset();

    Act mAct;
    GtkRef<GtkWidget> mWidget;
    /// The names of the controls that the widgets below stand for.
    std::string mBuilt;
    std::vector<Box> mBoxes;
    // Null when the panel has none.
    GtkRef<GtkWidget> mCount;
    GtkRef<GtkWidget> mCaption;
    GtkRef<GtkWidget> mPresets;
    GtkRef<GtkWidget> mPreview;
    /// Whether the widgets change because the panel has.
    bool mIsUpdating = false;
};
