// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QtGlobal>

#include <algorithm>
#include <functional>
#include <utility>

namespace model {

/// Makes decisions by chance.
class Dice
{
public:
    /// @param next gives another random number on each call.
    explicit Dice(std::function<quint64()> next)
        : mNext(std::move(next))
    {
    }

    /// A number from 0 to one less than @p count.
    int below(int count) { return int(mNext() % quint64(count)); }
    /// A number between the two, which may be either.
    int between(int least, int most) { return least + below(most - least + 1); }
    /// True so many times out of a hundred.
    bool chance(int percent) { return below(100) < percent; }

    /// One of the values, each as likely as the next.
    template <typename Value>
    const Value &oneOf(const QList<Value> &values)
    {
        return values.at(below(int(values.size())));
    }

    /// One of the values, each as likely as its number says.
    template <typename Value>
    const Value &weighted(const QList<std::pair<int, Value>> &values)
    {
        int total = 0;
        for (const auto &[weight, value] : values) {
            total += weight;
        }
        int rest = below(total);
        const auto found = std::find_if(values.begin(), values.end(), [&rest](const auto &entry) {
            return (rest -= entry.first) < 0;
        });
        return found->second;
    }

private:
    std::function<quint64()> mNext;
};

} // namespace model
