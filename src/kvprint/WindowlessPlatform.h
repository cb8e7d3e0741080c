// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Whether anything of a window that nobody sees is measured or drawn.
enum class WindowUse {
    /// What the window looks like is told: needs the fonts.
    Looks,
    /// Only its controls are used. Without the fonts, the application starts in two thirds of the
    /// processor time.
    ControlsAlone,
};

/// Makes the application that is created next use a platform of Qt's without a display, whatever
/// the environment says, and suppresses that platform's warnings on standard error.
void useWindowlessPlatform(WindowUse use);
