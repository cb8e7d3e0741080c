// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/QtVersions.h"

#include <QtGlobal>

/// A part of a text, or a caret when its length is 0; in UTF-16 units.
struct TextRange
{
    QtSize location = 0;
    QtSize length = 0;

    bool operator==(const TextRange &) const = default;
};
