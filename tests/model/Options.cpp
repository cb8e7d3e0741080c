// SPDX-License-Identifier: Apache-2.0
#include "Options.h"

#include <algorithm>

namespace model {
namespace {
const std::array<OptionNames, optionCount> names = {{
    {QLatin1String("KvCutLabel"), QLatin1String("mCutEveryChkBx"),
     QLatin1String("mCutEvery_Selection")},
    {QLatin1String("KvCutAtEnd"), QLatin1String("mCutAndEndChkBx"),
     QLatin1String("mCutEnd_Selection")},
    {QLatin1String("KvMirror"), QLatin1String("mMirrorPrintChkBx"),
     QLatin1String("mMirror_Selection")},
    {QLatin1String("KvAutoTapeCut"), QLatin1String("mAutoCutChkBx"),
     QLatin1String("mAutoCut_Selection")},
    {QLatin1String("KvHalfCut"), QLatin1String("mHalfCutChkBx"),
     QLatin1String("mHalfCut_Selection")},
    {QLatin1String("KvChainPrint"), QLatin1String("mChainPrintChkBx"),
     QLatin1String("mChainPrint_Selection")},
    {QLatin1String("KvSpecialTape"), QLatin1String("mSpecialTapeChkBx"),
     QLatin1String("mSpecialTape_Selection")},
    {QLatin1String("KvRemoveBlkSpace"), QLatin1String("mRemoveBlkSpaceChkBx"),
     QLatin1String("mRemoveBlkSpace_Selection")},
    {QLatin1String("KvCutMark"), QLatin1String("mCutMarkChkBx"),
     QLatin1String("mCutMark_Selection")},
}};

std::optional<Option> optionNamed(const QString &name, QLatin1String OptionNames::*kind)
{
    const auto found = std::ranges::find_if(
        everyOption, [&](Option option) { return names[option].*kind == name; });
    return found == everyOption.end() ? std::nullopt : std::optional(*found);
}
} // namespace

const OptionNames &namesOf(Option option)
{
    return names[option];
}

std::optional<Option> optionOfKeyword(const QString &keyword)
{
    return optionNamed(keyword, &OptionNames::keyword);
}

std::optional<Option> optionOfCheckBox(const QString &outlet)
{
    return optionNamed(outlet, &OptionNames::checkBox);
}

} // namespace model
