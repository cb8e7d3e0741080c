#pragma once

#include <QString>

/**
 * @file
 * The names of Qt 6 that tests use, for Qt 5.
 */

using QLatin1StringView = QLatin1String;

inline QString operator""_qs(const char16_t *text, std::size_t length)
{
    return QString::fromUtf16(text, int(length));
}
