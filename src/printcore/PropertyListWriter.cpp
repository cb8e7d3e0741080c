#include "printcore/PropertyListWriter.h"

#include "printcore/IntegerKind.h"
#include "printcore/PropertyListDate.h"
#include "printcore/PropertyListLimits.h"

#include <QtEndian>

#include <algorithm>
#include <bit>
#include <limits>

namespace {
using PropertyListNode::Pointer;

QByteArray bigEndianBytes(quint64 number)
{
    const quint64 bigEndian = qToBigEndian(number);
    return QByteArray(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

Pointer integerNode(const QVariant &value)
{
    if (integerKind(value) == IntegerKind::Signed) {
        return Pointer(plist_new_uint(static_cast<uint64_t>(value.toLongLong())));
    }
    const qulonglong number = value.toULongLong();
    if (number <= static_cast<qulonglong>(std::numeric_limits<qlonglong>::max())) {
        return Pointer(plist_new_uint(number));
    }
    // libplist makes negative numbers of such large ones, except of those that it reads.
    return PropertyListNode::fromObject(PropertyListNode::kWideIntegerMarker + bigEndianBytes(0) +
                                        bigEndianBytes(number));
}

Pointer dateNode(const QDateTime &date)
{
    const auto bits = std::bit_cast<quint64>(PropertyListDate::toSeconds(date));
    return PropertyListNode::fromObject(PropertyListNode::kDateMarker + bigEndianBytes(bits));
}

Pointer dataNode(const QByteArray &data)
{
    return Pointer(plist_new_data(data.constData(), static_cast<uint64_t>(data.size())));
}

bool isXMLCharacter(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x20 && code < 0xfffe) || code == u'\t' || code == u'\n' || code == u'\r';
}
} // namespace

PropertyListWriter::PropertyListWriter(PropertyList::Format format)
    : mFormat(format)
{
}

QByteArray PropertyListWriter::write(const QVariant &value)
{
    const Pointer root = node(value, Place());
    if (!root) {
        return {};
    }
    return mFormat == PropertyList::Format::XML ? PropertyListNode::toXML(root.get())
                                                : PropertyListNode::toBinary(root.get());
}

QString PropertyListWriter::Place::path() const
{
    if (!outer) {
        return {};
    }
    const QString outerPath = outer->path();
    if (index >= 0) {
        return QStringLiteral("%1[%2]").arg(outerPath).arg(index);
    }
    return outerPath.isEmpty() ? key : outerPath + u'/' + key;
}

Pointer PropertyListWriter::node(const QVariant &value, const Place &place)
{
    if (place.depth > PropertyListLimits::kDepth) {
        refuse(place, QStringLiteral("the values are nested too deeply"));
        return {};
    }
    switch (value.userType()) {
    case QMetaType::QVariantList:
        return arrayNode(value.toList(), place);
    case QMetaType::QVariantMap:
        return dictionaryNode(value.toMap(), place);
    case QMetaType::QString:
        return stringNode(value.toString(), place);
    default:
        return scalarNode(value, place);
    }
}

Pointer PropertyListWriter::scalarNode(const QVariant &value, const Place &place)
{
    if (integerKind(value) != IntegerKind::None) {
        return integerNode(value);
    }
    switch (value.userType()) {
    case QMetaType::Bool:
        return Pointer(plist_new_bool(value.toBool()));
    case QMetaType::Double:
        return Pointer(plist_new_real(value.toDouble()));
    case QMetaType::QByteArray:
        return dataNode(value.toByteArray());
    case QMetaType::QDateTime:
        if (PropertyListDate::isHeld(value.toDateTime())) {
            return dateNode(value.toDateTime());
        }
        refuse(place, QStringLiteral("a property list holds no such date"));
        return {};
    default:
        break;
    }
    refuse(place, QStringLiteral("a property list holds no %1")
                      .arg(value.isValid() ? QString::fromLatin1(value.typeName())
                                           : QStringLiteral("invalid value")));
    return {};
}

Pointer PropertyListWriter::stringNode(const QString &text, const Place &place)
{
    return takesText(text, place) ? Pointer(plist_new_string(text.toUtf8().constData())) : nullptr;
}

Pointer PropertyListWriter::arrayNode(const QVariantList &values, const Place &place)
{
    Pointer array(plist_new_array());
    Place inner{&place, {}, 0, place.depth + 1};
    for (const QVariant &value : values) {
        Pointer element = node(value, inner);
        if (!element) {
            return {};
        }
        plist_array_append_item(array.get(), element.release());
        ++inner.index;
    }
    return array;
}

Pointer PropertyListWriter::dictionaryNode(const QVariantMap &values, const Place &place)
{
    Pointer dictionary(plist_new_dict());
    for (auto entry = values.begin(); entry != values.end(); ++entry) {
        const Place inner{&place, entry.key(), -1, place.depth + 1};
        Pointer element = takesText(entry.key(), inner) ? node(entry.value(), inner) : nullptr;
        if (!element) {
            return {};
        }
        plist_dict_set_item(dictionary.get(), entry.key().toUtf8().constData(), element.release());
    }
    return dictionary;
}

bool PropertyListWriter::takesText(const QString &text, const Place &place)
{
    if (!text.isValidUtf16()) {
        refuse(place, QStringLiteral("the text is no Unicode"));
        return false;
    }
    const auto *const untaken = mFormat == PropertyList::Format::XML
                                    ? std::find_if_not(text.begin(), text.end(), isXMLCharacter)
                                    : std::find(text.begin(), text.end(), QChar(u'\0'));
    if (untaken == text.end()) {
        return true;
    }
    refuse(place, QStringLiteral("the format holds no character U+%1")
                      .arg(untaken->unicode(), 4, 16, QLatin1Char('0')));
    return false;
}

void PropertyListWriter::refuse(const Place &place, const QString &fault)
{
    const QString path = place.path();
    mFault = path.isEmpty() ? fault : path + QStringLiteral(": ") + fault;
}
