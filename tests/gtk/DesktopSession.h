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
     * Begins a session, which ends the one before.
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
    /// Presses keys, each alone or several at once ("alt+f Down").
    bool press(const QString &keys) const;
    /// Types a text where the focus is.
    bool type(const QString &text) const;
    /// Waits until a control is there.
    bool awaits(const QString &control) const;
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

    DisplayServer mDisplay;
    PrintingSite mSite;
    QTemporaryDir mFolder;
    QStringList mVariables;
    /// The command that gives the window the focus.
    QStringList mWindow;
    std::unique_ptr<AccessBus> mAccess;
    std::unique_ptr<DocumentPortal> mDocuments;
};
