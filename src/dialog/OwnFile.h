#pragma once

#include <QString>

/// The folder of the library that this is linked into, links followed.
QString ownFolder();
