#pragma once

#include <QString>

class Bundle;

/// What the strip will look like, for people who do not see the picture.
struct StripWords
{
    bool isSpecialTape = false;
    bool isCut = false;
    bool isCutAtEnd = false;
    bool isHalfCut = false;
    bool isChained = false;
    bool hasCutMarks = false;
    bool hasNoBlankSpace = false;
    bool isMirrored = false;
    /// How many labels there are between cuts; null when that is not to be told.
    QString count;

    /// One sentence a line, in the bundle's language.
    QString text(const Bundle &bundle) const;
};
