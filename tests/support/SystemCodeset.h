// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/// Gives this process a locale with that codeset; the machine's own again for an empty name.
void setSystemCodeset(const QByteArray &name);
