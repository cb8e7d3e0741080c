// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "DocumentPortal.h"
#include "PrintingSite.h"
#include "applications/AccessBus.h"
#include "applications/AssistiveUser.h"
#include "applications/DisplayServer.h"

#include <memory>

/// A desktop's session with a display, a print scheduler, and a session bus that starts what is
/// installed and the panel service of the build.
class DesktopSession
{
public:
    /// Starts the display and the scheduler; the reason when that fails.
    QString open();
    /**
     * Begins a session without any settings, which ends the one before.
     *
     * @param variables "NAME=VALUE" of the session's environment, which applications and what the
     *        bus starts have, besides what has GTK load the module of the build.
     * @return why there is none; null if there is.
     */
    QString begin(const QStringList &variables);

    /// Starts a program in the session.
    void start(OwnedProcess &process, const QString &program, const QStringList &arguments) const;
    /// Waits until there is a window whose title matches, and gives it the focus; what follows is
    /// done in it.
    bool workAt(const QString &title);
    /// Waits until the window is gone.
    bool isLeft(int patienceMs) const;
    /// Presses keys in the window, each alone or several at once ("alt+f Down"); false when it is
    /// gone.
    bool press(const QString &keys) const;
    /// Types a text where the focus is.
    bool type(const QString &text) const;
    /// Clicks a menu with the mouse.
    bool openMenu(const QString &menu) const;
    /// Gives a control the focus.
    bool focus(const QString &control) const { return user().focus(control); }
    /// Puts a text in the place of the one in a field ("FIELD=TEXT").
    bool replaceText(const QString &change) const;
    /// Clicks a control when it is there.
    bool click(const QString &control) const;
    /// Ticks a box that is not ticked.
    bool tick(const QString &box) const;
    /// Turns to a tab until a control in it is there.
    bool openTab(const QString &tab, const QString &control) const;

    const PrintingSite &site() const { return mSite; }
    /// What programs of the session have in their environment; only after begin().
    QProcessEnvironment environment() const;
    /// The bus of assistive technology; only after begin().
    const QDBusConnection &accessBus() const { return mAccess->bus(); }
    /// Whether a portal of the session, such as "gnome", has a print dialog; only after begin().
    bool hasPrintDialog(const QString &portal) const;
    /// A user of what runs in the session; only after begin().
    AssistiveUser user() const { return AssistiveUser(mAccess->bus()); }

private:
    /// Clicks a control if it is there; whether it was.
    bool clickNow(const QString &control) const;
    /// Clicks a place in the window with the mouse; false when there is no place.
    bool clickAt(const std::optional<QPoint> &place) const;
    bool isThere() const;
    /// Gives the window the focus if it is there; whether it has it.
    bool activate() const;

    DisplayServer mDisplay;
    PrintingSite mSite;
    /// Settings and data of the session's programs.
    std::unique_ptr<QTemporaryDir> mFolder;
    QStringList mVariables;
    /// The command that finds the window.
    QStringList mWindow;
    std::unique_ptr<AccessBus> mAccess;
    std::unique_ptr<DocumentPortal> mDocuments;
};
