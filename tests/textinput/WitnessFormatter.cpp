// SPDX-License-Identifier: Apache-2.0
#include "WitnessFormatter.h"

#include <utility>

namespace {
QString marked(QString text, const TextRange &selection)
{
    if (selection.length == 0) {
        return text.insert(selection.location, u'|');
    }
    text.insert(selection.location + selection.length, u']');
    return text.insert(selection.location, u'[');
}
} // namespace

bool WitnessFormatter::isPartialStringValid(const QString &proposedText,
                                            const TextRange *proposedSelectedRange,
                                            const QString &originalString,
                                            const TextRange &originalSelectedRange, QString *)
{
    mAsked += marked(originalString, originalSelectedRange) + u" > "_s +
              (proposedSelectedRange ? marked(proposedText, *proposedSelectedRange) : u"?"_s);
    return mIsAllowing;
}

QStringList WitnessFormatter::taken()
{
    return std::exchange(mAsked, {});
}

#include "moc_WitnessFormatter.cpp"
