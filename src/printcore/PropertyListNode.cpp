#include "printcore/PropertyListNode.h"

#include "printcore/QtVersions.h"

#include <QtEndian>

#include <cstdlib>

#include <locale.h>

namespace {
constexpr char kHeader[] = "bplist00";
constexpr QtSize kListHeaderSize = 8;
/// The offset table of a single object, and the trailer.
constexpr QtSize kTailSize = 1 + 32;

/// Keeps the calling thread to the C locale, as libplist reads numbers by the locale.
class CLocaleScope
{
public:
    CLocaleScope()
        : mPrevious(uselocale(cLocale()))
    {
    }
    ~CLocaleScope() { uselocale(mPrevious); }
    Q_DISABLE_COPY_MOVE(CLocaleScope)

private:
    static locale_t cLocale()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t mPrevious;
};

using Serialize = decltype(&plist_to_xml);

QByteArray serialized(plist_t node, Serialize serialize)
{
    const CLocaleScope scope;
    char *bytes = nullptr;
    uint32_t length = 0;
    serialize(node, &bytes, &length);
    QByteArray data(bytes, bytes ? static_cast<QtSize>(length) : 0);
    std::free(bytes);
    return data;
}
} // namespace

bool PropertyListNode::isBinary(const QByteArray &data)
{
    return data.startsWith(kHeader);
}

PropertyListNode::Pointer PropertyListNode::fromData(const QByteArray &data)
{
    const CLocaleScope scope;
    const auto parse = isBinary(data) ? plist_from_bin : plist_from_xml;
    plist_t node = nullptr;
    parse(data.constData(), static_cast<uint32_t>(data.size()), &node);
    return Pointer(node);
}

QByteArray PropertyListNode::toBinary(plist_t node)
{
    return serialized(node, plist_to_bin);
}

QByteArray PropertyListNode::toXML(plist_t node)
{
    QByteArray data = serialized(node, plist_to_xml);
    // Readers take a plain carriage return for the end of a line.
    data.replace('\r', "&#13;");
    return data;
}

PropertyListNode::Pointer PropertyListNode::fromObject(const QByteArray &object)
{
    QByteArray data = kHeader + object;
    const auto table = static_cast<quint64>(data.size());
    data.append(static_cast<char>(kListHeaderSize));
    data.append(6, '\0');
    data.append("\1\1", 2);
    for (const quint64 number : {quint64(1), quint64(0), table}) {
        const quint64 bigEndian = qToBigEndian(number);
        data.append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
    }
    return fromData(data);
}

QByteArray PropertyListNode::toObject(plist_t node)
{
    const QByteArray data = toBinary(node);
    return data.mid(kListHeaderSize, data.size() - kListHeaderSize - kTailSize);
}
