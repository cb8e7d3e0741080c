// SPDX-License-Identifier: Apache-2.0
#include "ppd/ChoiceList.h"

#include <algorithm>
#include <functional>

ChoiceList::ChoiceList(const ppd_option_t *option)
    : mIsNull(!option)
{
    if (option) {
        mChoices.reserve(std::size_t(option->num_choices));
        for (int i = 0; i < option->num_choices; ++i) {
            mChoices.emplace_back(option->choices + i);
        }
    }
}

const PDEChoice *ChoiceList::at(int index) const
{
    return index >= 0 && index < size() ? &mChoices[std::size_t(index)] : nullptr;
}

int ChoiceList::indexOf(const QString &keyword) const
{
    if (mIndexes.empty()) {
        for (int i = 0; i < size(); ++i) {
            mIndexes.try_emplace(at(i)->choice()->choice, i);
        }
    }
    const auto entry = mIndexes.find(keyword.toStdString());
    return entry == mIndexes.end() ? -1 : entry->second;
}

int ChoiceList::indexOf(const PDEChoice *choice) const
{
    const PDEChoice *first = mChoices.data();
    const bool isOurs =
        std::greater_equal<>()(choice, first) && std::less<>()(choice, first + mChoices.size());
    return isOurs ? int(choice - first) : -1;
}

int ChoiceList::indexOfDefault() const
{
    const auto choice = std::ranges::find_if(mChoices, &PDEChoice::isDefaultChoice);
    return choice == mChoices.end() ? -1 : int(choice - mChoices.begin());
}
