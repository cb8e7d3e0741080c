// SPDX-License-Identifier: Apache-2.0
#include "bench/RatioTable.h"

#include <array>
#include <cstdio>
#include <ostream>

namespace {
template <typename... Values>
std::string formatted(const char *format, Values... values)
{
    std::array<char, 200> text = {};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

std::string ratioText(double ratio)
{
    if (ratio < 0.0995) {
        return formatted("%.4f", ratio);
    }
    return formatted(ratio < 9.995 ? "%.2f" : "%.1f", ratio);
}

std::string aimText(const Aim &aim)
{
    switch (aim.kind) {
    case Aim::Kind::Ratio:
        return formatted("ratio <= %.4g", aim.limit);
    case Aim::Kind::Time:
        return aim.limit < 1e-3 ? formatted("time <= %g us", aim.limit * 1e6)
                                : formatted("time <= %g ms", aim.limit * 1e3);
    case Aim::Kind::Difference:
        return formatted("+%g ms", aim.limit * 1e3);
    default:
        return {};
    }
}

std::string verdict(const Aim &aim, double own, double other)
{
    const double values[] = {0.0, own / other, own, own - other};
    if (aim.kind == Aim::Kind::None) {
        return {};
    }
    return values[std::size_t(aim.kind)] <= aim.limit ? "met" : "missed";
}

std::string line(const std::array<std::string, 7> &cells)
{
    return formatted("%-38s %10s  %-38s %10s %7s  %-14s  %s\n", cells[0].c_str(), cells[1].c_str(),
                     cells[2].c_str(), cells[3].c_str(), cells[4].c_str(), cells[5].c_str(),
                     cells[6].c_str());
}
} // namespace

RatioTable::RatioTable(const std::map<std::string, double> &medians)
    : mMedians(medians)
{
}

std::string RatioTable::timeText(double seconds)
{
    return seconds < 1e-3 ? formatted("%7.2f us", seconds * 1e6)
                          : formatted("%7.2f ms", seconds * 1e3);
}

void RatioTable::print(std::ostream &stream, const std::vector<ComparisonGroup> &groups) const
{
    stream << '\n' << line({"", "time", "beside", "time", "ratio", "aim", ""});
    for (const ComparisonGroup &group : groups) {
        if (const std::string text = lines(group.comparisons); !text.empty()) {
            stream << '\n' << group.title << '\n' << text;
        }
    }
    stream.flush();
}

std::string RatioTable::lines(const std::vector<Comparison> &comparisons) const
{
    std::string text;
    for (const auto &[name, beside, aim] : comparisons) {
        const bool isAlone = beside.empty();
        const auto own = mMedians.find(name);
        const auto found = mMedians.find(beside);
        if (own == mMedians.end() || (found == mMedians.end() && !isAlone)) {
            continue;
        }
        const double other = isAlone ? 0.0 : found->second;
        text += line({name, timeText(own->second), beside, isAlone ? "" : timeText(other),
                      isAlone ? "" : ratioText(own->second / other), aimText(aim),
                      verdict(aim, own->second, other)});
    }
    return text;
}
