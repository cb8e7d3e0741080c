// SPDX-License-Identifier: Apache-2.0
#include "printcore/IntegerValue.h"

#include <algorithm>
#include <limits>

namespace {
constexpr qint64 kLargest = std::numeric_limits<qint32>::max();
constexpr qint64 kSmallest = std::numeric_limits<qint32>::min();

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}
} // namespace

qint32 integerValue(QStringView text)
{
    const auto *at = std::find_if_not(text.begin(), text.end(),
                                      [](QChar character) { return character.isSpace(); });
    const bool negative = at != text.end() && *at == u'-';
    if (negative || (at != text.end() && *at == u'+')) {
        ++at;
    }

    qint64 number = 0;
    for (; at != text.end() && isDigit(*at); ++at) {
        number = std::min(number * 10 + (at->unicode() - u'0'), -kSmallest);
    }
    return static_cast<qint32>(negative ? -number : std::min(number, kLargest));
}
