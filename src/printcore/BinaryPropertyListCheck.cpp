#include "printcore/BinaryPropertyListCheck.h"

#include "printcore/PropertyListDate.h"
#include "printcore/PropertyListLimits.h"
#include "printcore/QtVersions.h"
#include "printcore/UTF8.h"

#include <QtEndian>

#include <algorithm>
#include <bit>

namespace {
constexpr quint64 kHeaderSize = 8;
constexpr quint64 kTrailerSize = 32;
/// How often its own size the data may unfold to, and what any data may unfold to.
constexpr quint64 kUnfoldingFactor = 64;
constexpr quint64 kUnfoldingAllowance = 1 << 20;

// The upper four bits of an object's first byte.
constexpr quint8 kConstant = 0x0;
constexpr quint8 kInteger = 0x1;
constexpr quint8 kReal = 0x2;
constexpr quint8 kDate = 0x3;
constexpr quint8 kData = 0x4;
constexpr quint8 kASCIIString = 0x5;
constexpr quint8 kUTF16String = 0x6;
constexpr quint8 kArray = 0xa;
constexpr quint8 kDictionary = 0xd;

// The lower four.
constexpr quint8 kFalse = 0x8;
constexpr quint8 kTrue = 0x9;
constexpr quint8 kCountFollows = 0xf;

bool isString(quint8 kind)
{
    return kind == kASCIIString || kind == kUTF16String;
}

bool isCounted(quint8 kind)
{
    return isString(kind) || kind == kData || kind == kArray || kind == kDictionary;
}

bool isUTF8(const QByteArray &bytes)
{
    const QString text = textOfUTF8(bytes);
    return !text.isNull() && !text.contains(QChar(u'\0'));
}

bool isUTF16(const QByteArray &bytes)
{
    QString text(bytes.size() / 2, Qt::Uninitialized);
    qFromBigEndian<char16_t>(bytes.constData(), text.size(), text.data());
    return text.isValidUtf16() && !text.contains(QChar(u'\0'));
}

bool isDate(quint64 bits)
{
    return PropertyListDate::fromSeconds(std::bit_cast<double>(bits)).isValid();
}
} // namespace

BinaryPropertyListCheck::BinaryPropertyListCheck(const QByteArray &data)
    : mData(data)
{
}

QString BinaryPropertyListCheck::fault()
{
    if (readTrailer()) {
        check(mTop, 0);
    }
    return mFault;
}

bool BinaryPropertyListCheck::readTrailer()
{
    const auto size = static_cast<quint64>(mData.size());
    if (size < kHeaderSize + kTrailerSize) {
        return refuse(QStringLiteral("the data is cut off"));
    }
    const quint64 trailer = size - kTrailerSize;
    mOffsetTable = trailer;
    mOffsetSize = number(trailer + 6, 1);
    mReferenceSize = number(trailer + 7, 1);
    const quint64 objects = number(trailer + 8, 8);
    mTop = number(trailer + 16, 8);
    const quint64 table = number(trailer + 24, 8);
    const bool sound = std::clamp<quint64>(mOffsetSize, 1, 8) == mOffsetSize &&
                       std::clamp<quint64>(mReferenceSize, 1, 8) == mReferenceSize &&
                       table >= kHeaderSize && fits(table, objects, mOffsetSize);
    if (!sound) {
        return refuse(QStringLiteral("the trailer is malformed or the data is cut off"));
    }
    mOffsetTable = table;
    mVisits.resize(objects);
    return true;
}

/// Whether so many elements of that size lie before the offset table.
bool BinaryPropertyListCheck::fits(quint64 at, quint64 count, quint64 size) const
{
    return at <= mOffsetTable && count <= (mOffsetTable - at) / size;
}

quint64 BinaryPropertyListCheck::number(quint64 at, quint64 size) const
{
    quint64 number = 0;
    for (quint64 i = 0; i < size; ++i) {
        number = number << 8 | static_cast<quint8>(mData.at(static_cast<QtSize>(at + i)));
    }
    return number;
}

bool BinaryPropertyListCheck::readObject(quint64 index, Object *object) const
{
    if (index >= mVisits.size()) {
        return false;
    }
    const quint64 at = number(mOffsetTable + index * mOffsetSize, mOffsetSize);
    if (at < kHeaderSize || !fits(at, 1, 1)) {
        return false;
    }
    const quint64 marker = number(at, 1);
    object->kind = static_cast<quint8>(marker >> 4);
    object->detail = static_cast<quint8>(marker & 0xf);
    object->count = object->detail;
    object->content = at + 1;
    if (!isCounted(object->kind) || object->detail != kCountFollows) {
        return true;
    }

    if (!fits(object->content, 1, 1)) {
        return false;
    }
    const quint64 countMarker = number(object->content, 1);
    const quint64 countSize = 1ULL << (countMarker & 0xf);
    if (countMarker >> 4 != kInteger || countSize > 8 || !fits(object->content + 1, countSize, 1)) {
        return false;
    }
    object->count = number(object->content + 1, countSize);
    object->content += 1 + countSize;
    return true;
}

bool BinaryPropertyListCheck::check(quint64 index, int depth)
{
    Object object;
    if (!readObject(index, &object)) {
        return refuse(QStringLiteral("object %1 is not there").arg(index));
    }
    Visit &visit = mVisits[index];
    if (visit.state == State::Open) {
        return refuse(QStringLiteral("object %1 holds itself").arg(index));
    }
    if (depth + visit.height > PropertyListLimits::kDepth) {
        return refuse(QStringLiteral("the values are nested too deeply"));
    }
    if (visit.state == State::Sound) {
        return true;
    }
    visit.state = State::Open;
    if (!checkContent(index, object, depth)) {
        return false;
    }
    const auto size = static_cast<quint64>(mData.size());
    if (visit.size > kUnfoldingAllowance + kUnfoldingFactor * size) {
        return refuse(QStringLiteral("object %1 unfolds to too much").arg(index));
    }
    visit.state = State::Sound;
    return true;
}

bool BinaryPropertyListCheck::checkContent(quint64 index, const Object &object, int depth)
{
    if (object.kind == kArray || object.kind == kDictionary) {
        return checkContainer(index, object, depth);
    }

    quint64 size = object.count;
    if (object.kind == kUTF16String) {
        size *= 2;
    } else if (object.kind == kInteger || object.kind == kReal || object.kind == kDate) {
        size = 1ULL << object.detail;
    } else if (object.kind == kConstant) {
        size = 0;
    }
    if (object.count > static_cast<quint64>(mData.size()) || !fits(object.content, size, 1)) {
        return refuse(QStringLiteral("object %1 is cut off").arg(index));
    }
    mVisits[index].size = size + 1;

    const QByteArray bytes =
        mData.mid(static_cast<QtSize>(object.content), static_cast<QtSize>(size));
    const auto isTaken = [&] {
        switch (object.kind) {
        case kConstant:
            return object.detail == kFalse || object.detail == kTrue;
        case kInteger:
            return size <= 8 || (size == 16 && number(object.content, 8) == 0);
        case kReal:
            return size == 4 || size == 8;
        case kDate:
            return size == 8 && isDate(number(object.content, 8));
        case kData:
            return true;
        case kASCIIString:
            return isUTF8(bytes);
        case kUTF16String:
            return isUTF16(bytes);
        default:
            return false;
        }
    };
    return isTaken() || refuse(QStringLiteral("object %1 is of no known type").arg(index));
}

bool BinaryPropertyListCheck::checkContainer(quint64 index, const Object &object, int depth)
{
    const quint64 perElement = object.kind == kDictionary ? 2 : 1;
    if (!fits(object.content, object.count, perElement * mReferenceSize)) {
        return refuse(QStringLiteral("object %1 is cut off").arg(index));
    }
    if (object.kind == kDictionary && !checkKeys(object)) {
        return refuse(QStringLiteral("object %1 has a key that is no string").arg(index));
    }

    Visit &visit = mVisits[index];
    visit.size = 1;
    for (quint64 i = 0; i < object.count * perElement; ++i) {
        const quint64 element = number(object.content + i * mReferenceSize, mReferenceSize);
        if (!check(element, depth + 1)) {
            return false;
        }
        visit.size += mVisits[element].size;
        visit.height = std::max(visit.height, mVisits[element].height + 1);
    }
    return true;
}

bool BinaryPropertyListCheck::checkKeys(const Object &object)
{
    for (quint64 i = 0; i < object.count; ++i) {
        Object key;
        const quint64 index = number(object.content + i * mReferenceSize, mReferenceSize);
        if (!readObject(index, &key) || !isString(key.kind)) {
            return false;
        }
    }
    return true;
}

bool BinaryPropertyListCheck::refuse(const QString &fault)
{
    if (mFault.isNull()) {
        mFault = fault;
    }
    return false;
}
