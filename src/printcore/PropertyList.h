// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/**
 * XML property lists, read and written as variants.
 *
 * | property list | variant |
 * |---|---|
 * | string | QString |
 * | integer | qlonglong; qulonglong above its range |
 * | real | double |
 * | true, false | bool |
 * | date | QDateTime (UTC), years 1 to 9999 |
 * | data | QByteArray |
 * | array | QVariantList |
 * | dictionary | QVariantMap |
 */
namespace PropertyList {
/// The greatest number of arrays and dictionaries around a value.
constexpr int kGreatestDepth = 64;
/// The greatest number of bytes that are read.
constexpr int kGreatestSize = 32 * 1024;

/// Reads a property list that declares no entities. When the data is none, or beyond the limits,
/// the result is an invalid variant, and @p error (unless null) is set to what is wrong in which
/// line.
KVPRINTCORE_EXPORT QVariant read(const QByteArray &data, QString *error = nullptr);

/// Writes a property list of any size; every integer type of Qt's is taken. When a value cannot be
/// written, the result is empty, and @p error (unless null) is set to its path and what is wrong.
KVPRINTCORE_EXPORT QByteArray write(const QVariant &value, QString *error = nullptr);
} // namespace PropertyList
