// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/PDEChoice.h"

#include <string_view>
#include <unordered_map>
#include <vector>

/**
 * The choices of one PPD option in the PPD's order.
 *
 * A null list, "no such option", is told from an empty one, "an option without choices"; both have
 * the size 0.
 */
class ChoiceList
{
public:
    /// A null list.
    ChoiceList() = default;
    /// The choices of an option of an open PPD, which must outlive the list; null for a null
    /// option.
    explicit ChoiceList(const ppd_option_t *option);

    ChoiceList(ChoiceList &&) = default;
    ChoiceList &operator=(ChoiceList &&) = default;

    bool isNull() const { return mIsNull; }
    bool isEmpty() const { return mChoices.empty(); }
    int size() const { return int(mChoices.size()); }

    /// The choice at an index, owned by the list; null beyond either end.
    const PDEChoice *at(int index) const;

    /// Index of the first choice with that keyword; −1 when there is none.
    int indexOf(const QString &keyword) const;
    /// Index of that very choice, not of its equal; −1 when the list does not own it.
    int indexOf(const PDEChoice *choice) const;
    /// Index of the first choice that is the PPD's default; −1 when there is none.
    int indexOfDefault() const;

private:
    bool mIsNull = true;
    std::vector<PDEChoice> mChoices;
    /// The first index of each keyword in the PPD's records, made for the first search.
    mutable std::unordered_map<std::string_view, int> mIndexes;
};
