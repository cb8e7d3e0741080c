#include "printcore/PropertyListReader.h"

#include "printcore/PropertyListDate.h"
#include "printcore/QtVersions.h"

#include <QtEndian>

#include <bit>
#include <cstdlib>
#include <limits>
#include <utility>

namespace {
struct FreeDeleter
{
    void operator()(void *memory) const { std::free(memory); }
};
using Memory = std::unique_ptr<void, FreeDeleter>;

QVariant stringValue(plist_t node)
{
    uint64_t length = 0;
    const char *const bytes = plist_get_string_ptr(node, &length);
    return QString::fromUtf8(bytes, static_cast<QtSize>(length));
}

QVariant integerValue(plist_t node)
{
    uint64_t number = 0;
    plist_get_uint_val(node, &number);
    // libplist hands out 64 bits and tells in the binary form alone whether they have a sign.
    const bool hasHighBit = number > uint64_t(std::numeric_limits<int64_t>::max());
    if (hasHighBit &&
        PropertyListNode::toObject(node).startsWith(PropertyListNode::kWideIntegerMarker)) {
        return QVariant::fromValue<qulonglong>(number);
    }
    return QVariant::fromValue<qlonglong>(static_cast<qlonglong>(number));
}

QVariant realValue(plist_t node)
{
    double number = 0;
    plist_get_real_val(node, &number);
    return number;
}

QVariant boolValue(plist_t node)
{
    uint8_t truth = 0;
    plist_get_bool_val(node, &truth);
    return truth != 0;
}

QVariant dateValue(plist_t node)
{
    // libplist's own function answers 32 bits of seconds and loses the sign of their fraction.
    const QByteArray object = PropertyListNode::toObject(node);
    const auto bits = qFromBigEndian<quint64>(object.constData() + 1);
    return PropertyListDate::fromSeconds(std::bit_cast<double>(bits));
}

QVariant dataValue(plist_t node)
{
    uint64_t length = 0;
    const char *const bytes = plist_get_data_ptr(node, &length);
    return QByteArray(bytes, static_cast<QtSize>(length));
}

QVariant arrayValue(plist_t node)
{
    plist_array_iter iterator = nullptr;
    plist_array_new_iter(node, &iterator);
    const Memory iteratorOwner(iterator);
    QVariantList values;
    values.reserve(static_cast<QtSize>(plist_array_get_size(node)));
    plist_t element = nullptr;
    for (plist_array_next_item(node, iterator, &element); element;
         plist_array_next_item(node, iterator, &element)) {
        const QVariant value = PropertyListReader::value(element);
        if (!value.isValid()) {
            return {};
        }
        values.append(value);
    }
    return values;
}

QVariant dictionaryValue(plist_t node)
{
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(node, &iterator);
    const Memory iteratorOwner(iterator);
    QVariantMap values;
    char *key = nullptr;
    plist_t element = nullptr;
    for (plist_dict_next_item(node, iterator, &key, &element); element;
         plist_dict_next_item(node, iterator, &key, &element)) {
        const Memory keyOwner(std::exchange(key, nullptr));
        const QVariant value = PropertyListReader::value(element);
        if (!value.isValid()) {
            return {};
        }
        values.insert(QString::fromUtf8(static_cast<const char *>(keyOwner.get())), value);
    }
    return values;
}
} // namespace

QVariant PropertyListReader::value(plist_t node)
{
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return stringValue(node);
    case PLIST_UINT:
        return integerValue(node);
    case PLIST_REAL:
        return realValue(node);
    case PLIST_BOOLEAN:
        return boolValue(node);
    case PLIST_DATE:
        return dateValue(node);
    case PLIST_DATA:
        return dataValue(node);
    case PLIST_ARRAY:
        return arrayValue(node);
    case PLIST_DICT:
        return dictionaryValue(node);
    default:
        return {};
    }
}
