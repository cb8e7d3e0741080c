// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <algorithm>

/**
 * @file
 * The names for what the versions of Qt that the sources are built for have under different ones.
 */

/// The type in which Qt counts the parts of texts, lists and data.
using QtSize = QString::size_type;

/// Removes the elements that the predicate holds for.
template <typename List, typename Predicate>
void removeFrom(List &list, Predicate predicate)
{
    list.erase(std::remove_if(list.begin(), list.end(), predicate), list.end());
}
