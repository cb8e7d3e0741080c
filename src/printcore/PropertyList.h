#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

/**
 * Property lists, read and written as variants.
 *
 * | property list | variant |
 * |---|---|
 * | string | QString |
 * | integer | qlonglong; qulonglong above its range |
 * | real | double |
 * | true, false | bool |
 * | date | QDateTime (UTC) |
 * | data | QByteArray |
 * | array | QVariantList |
 * | dictionary | QVariantMap |
 */
namespace PropertyList {
enum class Format {
    XML,
    Binary,
};

/**
 * Reads a property list of either format.
 *
 * @param error set to what is wrong when the result is invalid; may be null.
 * @return an invalid variant when the data is no property list or holds a value of another type
 *         than the above.
 */
KVPRINTCORE_EXPORT QVariant read(const QByteArray &data, QString *error = nullptr);

/**
 * Writes a property list. Every integer type of Qt's is taken.
 *
 * @param error set to the path of the value that cannot be written; may be null.
 * @return an empty array when a value has another type than the above.
 */
KVPRINTCORE_EXPORT QByteArray write(const QVariant &value, Format format, QString *error = nullptr);
} // namespace PropertyList
