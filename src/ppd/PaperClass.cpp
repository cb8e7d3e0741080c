// SPDX-License-Identifier: Apache-2.0
#include "ppd/PaperClass.h"

#include <algorithm>
#include <iterator>

namespace {
constexpr PaperPrefix prefixes[] = {
    {"DC", PaperClass::DieCut, "die-cut labels"},
    {"AV", PaperClass::Address, "address labels"},
    {"FL", PaperClass::Flag, "flag labels"},
    {"C_", PaperClass::Continuous, "continuous labels"},
    {"HS", PaperClass::HeatShrink, "heat-shrink tube"},
    {"Custom", PaperClass::Custom, "a custom size"},
};
} // namespace

const PaperPrefix *paperPrefixOf(const QByteArray &name)
{
    const auto *row = std::ranges::find_if(
        prefixes, [&name](const PaperPrefix &p) { return name.startsWith(p.prefix); });
    return row == std::end(prefixes) ? nullptr : row;
}

PaperClass paperClassOf(const QByteArray &name)
{
    const PaperPrefix *row = paperPrefixOf(name);
    return row ? row->paper : PaperClass::Other;
}

bool isLabelPaper(PaperClass paper)
{
    return paper == PaperClass::DieCut || paper == PaperClass::Address ||
           paper == PaperClass::Flag || paper == PaperClass::Continuous;
}
