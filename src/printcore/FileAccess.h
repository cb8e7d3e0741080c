#pragma once

#include "printcore/Export.h"

#include <QString>

/// What a file or folder is wanted for.
enum class FileAccess { ReadFile, EnterFolder, ListFolder };

/// Whether there is nothing of that name, not even a link that leads nowhere.
KVPRINTCORE_EXPORT bool isMissing(const QString &path);

/**
 * What keeps a file or folder from being used, to be said behind its name ("is missing"); null when
 * nothing does.
 *
 * Looks without opening it, as whoever opens a pipe would wait for ever.
 */
KVPRINTCORE_EXPORT QString accessFault(const QString &path,
                                       FileAccess access = FileAccess::ReadFile);
