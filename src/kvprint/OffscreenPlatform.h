// SPDX-License-Identifier: Apache-2.0
#pragma once

/// Makes the application that is created next use Qt's offscreen platform, whatever the environment
/// says, and suppresses that platform's warnings on standard error.
void useOffscreenPlatform();
