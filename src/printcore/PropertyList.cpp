#include "printcore/PropertyList.h"

#include "printcore/BinaryPropertyListCheck.h"
#include "printcore/PropertyListNode.h"
#include "printcore/PropertyListReader.h"
#include "printcore/PropertyListWriter.h"
#include "printcore/QtVersions.h"
#include "printcore/XMLPropertyListNormalizer.h"

namespace {
/// The plain form may be longer than the data, and libplist counts bytes in 32 bits.
constexpr QtSize kLongestData = 1 << 29;

QByteArray soundXML(const QByteArray &data, QString *fault)
{
    XMLPropertyListNormalizer normalizer(data);
    QByteArray normalized = normalizer.normalized();
    *fault = normalizer.fault();
    return normalized;
}

QByteArray soundBinary(const QByteArray &data, QString *fault)
{
    *fault = BinaryPropertyListCheck(data).fault();
    return data;
}

/// The data in a form that libplist can be given; tells what is wrong when there is none.
QByteArray soundData(const QByteArray &data, QString *fault)
{
    if (data.isEmpty()) {
        *fault = QStringLiteral("the data is empty");
    } else if (data.size() > kLongestData) {
        *fault = QStringLiteral("the data is too long");
    } else {
        return PropertyListNode::isBinary(data) ? soundBinary(data, fault) : soundXML(data, fault);
    }
    return {};
}
} // namespace

QVariant PropertyList::read(const QByteArray &data, QString *error)
{
    QString fault;
    const QByteArray sound = soundData(data, &fault);
    if (fault.isNull()) {
        const PropertyListNode::Pointer root = PropertyListNode::fromData(sound);
        QVariant value = root ? PropertyListReader::value(root.get()) : QVariant();
        if (value.isValid()) {
            return value;
        }
        fault = QStringLiteral("the data is malformed");
    }
    if (error) {
        *error = fault;
    }
    return {};
}

QByteArray PropertyList::write(const QVariant &value, Format format, QString *error)
{
    PropertyListWriter writer(format);
    QByteArray data = writer.write(value);
    if (error && data.isEmpty()) {
        *error = writer.fault();
    }
    return data;
}
