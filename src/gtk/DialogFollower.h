// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "gtk/DialogOptions.h"
#include "gtk/GtkVersions.h"
#include "gtk/OptionTab.h"
#include "gtk/PaintWatch.h"
#include "gtk/ServiceTalk.h"

#include <memory>
#include <string>
#include <vector>

/**
 * Shows the panel in one of GTK's print dialogs: asks the panel service about each printer that is
 * selected, and sets what the panel decides in the dialog's own options, which the job gets.
 *
 * The dialog may be closed, shown again or destroyed at any moment.
 */
class DialogFollower
{
public:
    /// Follows a dialog, which nobody else is connected to yet, as long as the dialog exists.
    static void follow(GtkPrintUnixDialog *dialog);

    ~DialogFollower();
    DialogFollower(const DialogFollower &) = delete;
    DialogFollower &operator=(const DialogFollower &) = delete;

private:
    explicit DialogFollower(GtkPrintUnixDialog *dialog);

    /// Waits until the dialog is on the screen, which it is as early as without the panel.
    void awaitSight();
    void begin();
    /// Ends the conversation of a dialog that is not shown any more.
    void forgetSight();
    void followPrinter();
    void followPaper();
    GVariant *openingRequests(GtkPrinter *printer) const;
    GVariant *lookRequest() const;
    void takeOpened(ServiceTalk::Outcome outcome, GVariant *answers);
    void takePanel(const PanelAnswer &options, const PanelAnswer &look);

    /// Tells the panel what the user has done ("a{sv}", floating), behind what it is told already.
    void act(GVariant *action);
    /// Sends all that the panel has not been told yet.
    void sendActions();
    void takeAction(GVariant *answers);
    /// Takes what the panel decides and looks like behind some actions.
    void takeOutlook(GVariant *answers);
    /// Sets the dialog's own options.
    void applyOptions(const PanelAnswer &options) const;
    void alert(const std::string &text) const;

    /// Whether the response has to wait for the panel.
    bool holds(int response);
    void askPermission();
    void takePermission(GVariant *answers);
    /// Lets a response that waits go on. The dialog may be gone afterwards, and this with it.
    void release();
    void endHolding();

    void addTab(const std::string &title);
    /// Takes the tab away, if it is there, and goes on without the panel.
    void dropTab();
    /// Says that the options cannot be shown, and goes on without the panel.
    void fail();
    void goOnWithoutPanel();
    /// Ends the conversation, and forgets a response that waits.
    void endTalk();
    /// Ends the conversation; a response goes on to wait.
    void dropTalk();
    void forgetDialog();

    GtkPrintUnixDialog *mDialog;
    /// While the dialog is shown and has not been painted yet.
    std::unique_ptr<PaintWatch> mPaintWatch;
    bool mIsSeen = false;
    std::unique_ptr<ServiceTalk> mTalk;
    bool mIsOpen = false;
    /// Whether the dialog has got another paper since the conversation was begun.
    bool mHasOtherPaper = false;
    OptionTab mTab;
    /// What is hidden because the tab shows the same.
    std::vector<GtkRef<GtkWidget>> mHidden;
    /// What the panel is still to be told.
    std::vector<VariantRef> mActions;
    /// How often the outlook has been asked for and not been answered yet.
    int mUnanswered = 0;
    /// The response that waits for the panel; 0 for none.
    int mHeld = 0;
    guint mPatience = 0;
    bool mIsReleasing = false;
    bool mIsDestroyed = false;
};
