// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

#include <limits>

/// The bounds of a signed number of 32 bits.
inline constexpr qint32 smallest = std::numeric_limits<qint32>::min();
inline constexpr qint32 largest = std::numeric_limits<qint32>::max();
