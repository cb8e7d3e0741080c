// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLatin1String>
#include <QString>

#include <array>
#include <optional>

namespace model {

/// The nine options in the order in which the panel always takes them.
enum Option {
    CutEvery,
    CutAtEnd,
    Mirror,
    AutoCut,
    HalfCut,
    ChainPrint,
    SpecialTape,
    RemoveBlkSpace,
    CutMark,
};

inline constexpr std::size_t optionCount = 9;

inline constexpr std::array<Option, optionCount> everyOption = {
    CutEvery, CutAtEnd, Mirror, AutoCut, HalfCut, ChainPrint, SpecialTape, RemoveBlkSpace, CutMark,
};

/// The names that belong to an option.
struct OptionNames
{
    QLatin1String keyword;
    QLatin1String checkBox;
    QLatin1String selection;
};

/// The names of an option.
const OptionNames &namesOf(Option option);

/// The option with exactly that keyword.
std::optional<Option> optionOfKeyword(const QString &keyword);

/// The option whose check box has that name.
std::optional<Option> optionOfCheckBox(const QString &outlet);

} // namespace model
