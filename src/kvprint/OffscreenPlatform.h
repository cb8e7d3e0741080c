#pragma once

/// Lets the application that is made next work without a display, whatever the user's environment
/// says, and without remarks on standard error on what such a platform lacks.
void useOffscreenPlatform();
