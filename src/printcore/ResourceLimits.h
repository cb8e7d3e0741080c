// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

/**
 * What the files of a bundle may hold at most. Each limit is many times what a bundle needs: what
 * is beyond it would keep the dialog of an application waiting.
 */
namespace ResourceLimits {
/// Bytes of the info file, and the names in one of its lists.
constexpr qint64 kInfoSize = 262'144;
constexpr int kNames = 2000;

/// Bytes of a string table.
constexpr qint64 kTableSize = 1'048'576;

/// Bytes of a form, its widgets, all its elements, and how deep these are within each other.
constexpr qint64 kFormSize = 262'144;
constexpr int kFormWidgets = 500;
constexpr int kFormElements = 10'000;
constexpr int kFormDepth = 64;

/// Bytes of a keyword map.
constexpr qint64 kMapSize = 262'144;

/// Bytes and pixels of a picture.
constexpr qint64 kPictureSize = 1'048'576;
constexpr qint64 kPicturePixels = 4'194'304;
} // namespace ResourceLimits
