// SPDX-License-Identifier: Apache-2.0
#pragma once

/// The title of a tab whose panel is not known, in the user's language.
const char *failureTitle();

/// The sentence that the printer's options cannot be shown, in the user's language.
const char *failureText();
