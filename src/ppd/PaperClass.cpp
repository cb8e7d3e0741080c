// SPDX-License-Identifier: Apache-2.0
#include "ppd/PaperClass.h"

#include <algorithm>
#include <iterator>

namespace {
struct PaperPrefix
{
    const char *prefix;
    PaperClass paper;
};

constexpr PaperPrefix prefixes[] = {
    {"DC", PaperClass::DieCut},     {"AV", PaperClass::Address},    {"FL", PaperClass::Flag},
    {"C_", PaperClass::Continuous}, {"HS", PaperClass::HeatShrink}, {"Custom", PaperClass::Custom},
};
} // namespace

PaperClass paperClassOf(const QByteArray &name)
{
    const auto *row = std::ranges::find_if(
        prefixes, [&name](const PaperPrefix &p) { return name.startsWith(p.prefix); });
    return row == std::end(prefixes) ? PaperClass::Other : row->paper;
}

bool isLabelPaper(PaperClass paper)
{
    return paper == PaperClass::DieCut || paper == PaperClass::Address ||
           paper == PaperClass::Flag || paper == PaperClass::Continuous;
}
