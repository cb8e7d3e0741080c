// SPDX-License-Identifier: Apache-2.0
#include "printcore/PropertyList.h"

#include "printcore/IntegerKind.h"
#include "printcore/QtVersions.h"
#include "printcore/UTF8.h"

#include <QDateTime>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace {
QVariant integerOf(const QString &text)
{
    bool isSigned = false;
    bool isUnsigned = false;
    const qlonglong number = text.toLongLong(&isSigned);
    const qulonglong large = text.toULongLong(&isUnsigned);
    return isSigned ? QVariant(number) : isUnsigned ? QVariant(large) : QVariant();
}

QVariant realOf(const QString &text)
{
    const QString word = QString(text).replace(QLatin1String("infinity"), QLatin1String("inf"));
    bool isNumber = false;
    const double number = word.toDouble(&isNumber);
    return isNumber ? QVariant(number) : QVariant();
}

/// The date in UTC without a fraction of zero; empty when its year has no four digits.
QString textOf(const QDateTime &date)
{
    return date.toUTC().toString(Qt::ISODateWithMs).remove(QLatin1String(".000"));
}

/// Takes no more than textOf() makes, as one version of Qt takes more than another.
QVariant dateOf(const QString &text)
{
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    return date.isValid() && text == textOf(date) ? QVariant(date) : QVariant();
}

QVariant dataOf(const QString &text)
{
    const QByteArray digits = text.simplified().remove(u' ').toLatin1();
    const auto data =
        QByteArray::fromBase64Encoding(digits, QByteArray::AbortOnBase64DecodingErrors);
    return data && digits.size() % 4 == 0 ? QVariant(*data) : QVariant();
}

template <bool truth>
QVariant truthOf(const QString &text)
{
    return text.isEmpty() ? QVariant(truth) : QVariant();
}

/// The elements that hold a text, and what it stands for: an invalid variant for nothing.
const struct
{
    QLatin1String name;
    QVariant (*value)(const QString &text);
} kScalarElements[] = {
    {QLatin1String("string"),
     [](const QString &text) {
         return QVariant(text);
     }},
    {QLatin1String("integer"), integerOf},
    {QLatin1String("real"), realOf},
    {QLatin1String("true"), truthOf<true>},
    {QLatin1String("false"), truthOf<false>},
    {QLatin1String("date"), dateOf},
    {QLatin1String("data"), dataOf},
};

/// Tells of a fault. The first one counts, and behind it the document has nothing more.
void refuse(QXmlStreamReader &xml, const QString &fault)
{
    if (!xml.hasError()) {
        xml.raiseError(fault);
    }
}

/// Goes to the next element within the present one; false at the end of that and after a fault.
bool goToElement(QXmlStreamReader &xml)
{
    do {
        xml.readNext();
        if (xml.isEntityReference() || (xml.isCharacters() && !xml.isWhitespace())) {
            refuse(xml, QStringLiteral("there is text between the values"));
        }
    } while (!xml.isStartElement() && !xml.isEndElement() && !xml.atEnd());
    return xml.isStartElement();
}

QString readText(QXmlStreamReader &xml)
{
    QString text = QStringLiteral("");
    while (!xml.hasError() && xml.readNext() != QXmlStreamReader::EndElement) {
        if (xml.isCharacters()) {
            text += xml.text();
        } else if (!xml.isComment() && !xml.isProcessingInstruction()) {
            refuse(xml, QStringLiteral("a text holds \"%1\"").arg(xml.name().toString()));
        }
    }
    return text;
}

QVariant readScalar(QXmlStreamReader &xml)
{
    for (const auto &element : kScalarElements) {
        if (xml.qualifiedName() == element.name) {
            const QString text = readText(xml);
            QVariant value = element.value(text);
            if (!value.isValid()) {
                refuse(xml, QStringLiteral("\"%1\" is no \"%2\"").arg(text.left(40), element.name));
            }
            return value;
        }
    }
    refuse(xml,
           QStringLiteral("a property list holds no \"%1\"").arg(xml.qualifiedName().toString()));
    return {};
}

QVariant readValue(QXmlStreamReader &xml, int depth);

QVariantMap readDictionary(QXmlStreamReader &xml, int depth)
{
    QVariantMap values;
    while (goToElement(xml)) {
        if (xml.qualifiedName() != QLatin1String("key")) {
            refuse(xml, QStringLiteral("a value has no key"));
        }
        const QString key = readText(xml);
        if (values.contains(key)) {
            refuse(xml, QStringLiteral("the key \"%1\" is there twice").arg(key));
        } else if (goToElement(xml)) {
            values.insert(key, readValue(xml, depth + 1));
        } else {
            refuse(xml, QStringLiteral("the key \"%1\" has no value").arg(key));
        }
    }
    return values;
}

QVariant readValue(QXmlStreamReader &xml, int depth)
{
    if (depth > PropertyList::kGreatestDepth) {
        refuse(xml, QStringLiteral("the values are nested too deeply"));
    }
    if (xml.qualifiedName() == QLatin1String("dict")) {
        return readDictionary(xml, depth);
    }
    if (xml.qualifiedName() != QLatin1String("array")) {
        return readScalar(xml);
    }
    QVariantList values;
    while (goToElement(xml)) {
        values.append(readValue(xml, depth + 1));
    }
    return values;
}

QVariant readDocument(QXmlStreamReader &xml, const QString &text)
{
    // Qt expands declared entities without end. Declarations are in brackets in front of the first
    // element, so the reader gets no bracket until it is there.
    const QString head = text.left(text.indexOf(u'['));
    xml.addData(head);
    goToElement(xml);
    if (head != text && xml.error() == QXmlStreamReader::PrematureEndOfDocumentError) {
        xml.raiseError(QStringLiteral("there is a \"[\" in front of the first element"));
    }
    xml.addData(text.mid(head.size()));
    if (xml.qualifiedName() != QLatin1String("plist")) {
        refuse(xml, QStringLiteral("the data is no property list"));
    }
    if (!goToElement(xml)) {
        refuse(xml, QStringLiteral("the property list is empty"));
    }
    const QVariant value = readValue(xml, 0);
    while (!xml.atEnd()) {
        if (goToElement(xml)) {
            refuse(xml, QStringLiteral("there is a second value at the top level"));
        }
    }
    return xml.hasError() ? QVariant() : value;
}

/// A property list that is being written, and what cannot be written; null when all can.
struct PropertyListOutput
{
    QByteArray data;
    QXmlStreamWriter xml{&data};
    QString fault;
};

/// Tells of a fault of the value at the path; the first one counts.
void refuse(PropertyListOutput &output, const QString &path, const QString &fault)
{
    if (output.fault.isNull()) {
        output.fault = path.isEmpty() ? fault : path + QStringLiteral(": ") + fault;
    }
}

bool isNoXMLCharacter(QChar character)
{
    return (character < u' ' && !QLatin1String("\t\n\r").contains(character)) ||
           character > u'\ufffd';
}

void writeElement(PropertyListOutput &output, const QString &path, const QString &name,
                  const QString &text = {})
{
    const auto *const fault = std::find_if(text.begin(), text.end(), isNoXMLCharacter);
    if (fault != text.end()) {
        const QString code = QString::number(fault->unicode(), 16).rightJustified(4, u'0');
        refuse(output, path, QStringLiteral("XML has no character U+") + code);
    } else if (!text.isValidUtf16()) {
        refuse(output, path, QStringLiteral("the text is no Unicode"));
    } else if (text.isEmpty()) {
        output.xml.writeEmptyElement(name);
    } else {
        output.xml.writeTextElement(name, text);
    }
}

void writeScalar(PropertyListOutput &output, const QString &path, const QVariant &value)
{
    const int type = value.userType();
    if (type == QMetaType::QString) {
        writeElement(output, path, QStringLiteral("string"), value.toString());
    } else if (integerKind(value) == IntegerKind::Signed) {
        writeElement(output, path, QStringLiteral("integer"), QString::number(value.toLongLong()));
    } else if (integerKind(value) == IntegerKind::Unsigned) {
        writeElement(output, path, QStringLiteral("integer"), QString::number(value.toULongLong()));
    } else if (type == QMetaType::Double) {
        writeElement(output, path, QStringLiteral("real"), value.toString());
    } else if (type == QMetaType::Bool) {
        writeElement(output, path, value.toString());
    } else if (type == QMetaType::QDateTime && !textOf(value.toDateTime()).isEmpty()) {
        writeElement(output, path, QStringLiteral("date"), textOf(value.toDateTime()));
    } else if (type == QMetaType::QByteArray) {
        writeElement(output, path, QStringLiteral("data"),
                     QString::fromLatin1(value.toByteArray().toBase64()));
    } else {
        const char *const kind = value.isValid() ? value.typeName() : "invalid value";
        refuse(output, path,
               QStringLiteral("a property list cannot hold this %1").arg(QLatin1String(kind)));
    }
}

void writeValue(PropertyListOutput &output, const QString &path, const QVariant &value, int depth)
{
    if (depth > PropertyList::kGreatestDepth) {
        refuse(output, path, QStringLiteral("the values are nested too deeply"));
    } else if (value.userType() == QMetaType::QVariantList) {
        const QVariantList values = value.toList();
        output.xml.writeStartElement(QStringLiteral("array"));
        for (QtSize i = 0; i < values.size(); ++i) {
            writeValue(output, path + u'[' + QString::number(i) + u']', values[i], depth + 1);
        }
        output.xml.writeEndElement();
    } else if (value.userType() == QMetaType::QVariantMap) {
        const QVariantMap values = value.toMap();
        output.xml.writeStartElement(QStringLiteral("dict"));
        for (auto entry = values.begin(); entry != values.end(); ++entry) {
            const QString inner = path.isEmpty() ? entry.key() : path + u'/' + entry.key();
            writeElement(output, inner, QStringLiteral("key"), entry.key());
            writeValue(output, inner, entry.value(), depth + 1);
        }
        output.xml.writeEndElement();
    } else {
        writeScalar(output, path, value);
    }
}
} // namespace

QVariant PropertyList::read(const QByteArray &data, QString *error)
{
    QXmlStreamReader xml;
    const bool isShort = data.size() <= kGreatestSize;
    const QString text = isShort ? textOfUTF8(data) : QString();
    const QVariant value = text.isNull() ? QVariant() : readDocument(xml, text);
    if (error && xml.hasError()) {
        *error = QStringLiteral("line %1: %2").arg(xml.lineNumber()).arg(xml.errorString());
    } else if (error && text.isNull()) {
        *error = isShort ? QStringLiteral("the data is not in UTF-8")
                         : QStringLiteral("the data is longer than %1 bytes").arg(kGreatestSize);
    }
    return value;
}

QByteArray PropertyList::write(const QVariant &value, QString *error)
{
    PropertyListOutput output;
    output.xml.setAutoFormatting(true);
    output.xml.writeStartDocument();
    output.xml.writeDTD(QStringLiteral("<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                       "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">"));
    output.xml.writeStartElement(QStringLiteral("plist"));
    output.xml.writeAttribute(QStringLiteral("version"), QStringLiteral("1.0"));
    writeValue(output, {}, value, 0);
    output.xml.writeEndDocument();
    if (error && !output.fault.isNull()) {
        *error = output.fault;
    }
    // Readers take a plain carriage return for the end of a line.
    return output.fault.isNull() ? output.data.replace('\r', "&#13;") : QByteArray();
}
