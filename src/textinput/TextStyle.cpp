// SPDX-License-Identifier: Apache-2.0
#include "textinput/TextStyle.h"

#include <QLatin1String>

#include <iterator>

namespace {
using Rules = StyleRules;

// In the order of TextStyle.
constexpr Rules styleRules[] = {
    {Rules::Everything, "", false, false},
    {Rules::AllASCII, "", false, false},
    {Rules::Digits, "", true, false},
    {Rules::AllASCII, "", false, false},
    {Rules::Digits, ".", true, true},
    {Rules::AllASCII, "", false, false},
    {Rules::Digits | Rules::Letters, " ", false, false},
    {Rules::Digits | Rules::Letters, " $%+-./", false, false},
    {Rules::Digits, "$+-./:", false, false},
    {Rules::Digits, "$+-./:ABCDabcd", false, false},
    {Rules::Printable, "", false, false},
    {Rules::Digits | Rules::Letters, " !\"%'()*+,-./:;<=>?_", false, false},
};
static_assert(std::size(styleRules) == PunctuatedText + 1);

bool isWithin(QChar character, char16_t first, char16_t last)
{
    return character >= first && character <= last;
}

quint8 classesOf(QChar character)
{
    int classes = Rules::Everything;
    if (isWithin(character, u'\0', u'\x7f')) {
        classes |= Rules::AllASCII;
    }
    if (isWithin(character, u' ', u'~')) {
        classes |= Rules::Printable;
    }
    if (isWithin(character, u'0', u'9')) {
        classes |= Rules::Digits;
    }
    if (isWithin(character, u'A', u'Z') || isWithin(character, u'a', u'z')) {
        classes |= Rules::Letters;
    }
    return quint8(classes);
}
} // namespace

bool StyleRules::accepts(QChar character) const
{
    return (classes & classesOf(character)) != 0 || QLatin1String(others).contains(character);
}

const StyleRules &StyleRules::of(qint32 style)
{
    const bool isKnown = style >= AnyText && style <= PunctuatedText;
    return styleRules[isKnown ? style : ASCIIText];
}
