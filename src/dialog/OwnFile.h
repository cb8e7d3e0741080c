// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// The path that the library that this is linked into has been loaded from.
QString ownFile();

/// The folder of that library, links followed; null when the file has been removed since.
QString ownFolder();
