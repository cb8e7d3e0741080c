// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/**
 * @file
 * The names of Qt 6 that tests use, for both versions of Qt.
 */

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
using QLatin1StringView = QLatin1String;

namespace Qt {
inline namespace Literals {
inline namespace StringLiterals {
inline QString operator""_s(const char16_t *text, std::size_t length)
{
    return QString::fromUtf16(text, int(length));
}
} // namespace StringLiterals
} // namespace Literals
} // namespace Qt
#endif

using namespace Qt::StringLiterals;
