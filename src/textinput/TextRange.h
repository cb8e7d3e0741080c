#pragma once

#include <QtGlobal>

/// A part of a text, or a caret when its length is 0; in UTF-16 units.
struct TextRange
{
    qsizetype location = 0;
    qsizetype length = 0;

    bool operator==(const TextRange &) const = default;
};
