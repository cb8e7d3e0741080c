#include "printcore/XMLPropertyListNormalizer.h"

#include "printcore/PropertyListDate.h"
#include "printcore/PropertyListLimits.h"
#include "printcore/QtVersions.h"
#include "printcore/UTF8.h"

#include <algorithm>
#include <iterator>

namespace {
bool isText(const QString &)
{
    return true;
}

bool isNothing(const QString &text)
{
    return text.isEmpty();
}

bool isInteger(const QString &text)
{
    const QString trimmed = text.trimmed();
    const QtSize signLength = trimmed.startsWith(u'-') || trimmed.startsWith(u'+') ? 1 : 0;
    const QStringView digits = QStringView(trimmed).mid(signLength);
    // libplist takes a leading 0 for the mark of an octal number.
    if (digits.size() > 1 && digits.front() == u'0') {
        return false;
    }
    bool isSigned = false;
    bool isUnsigned = false;
    trimmed.toLongLong(&isSigned);
    trimmed.toULongLong(&isUnsigned);
    return isSigned || isUnsigned;
}

bool isReal(const QString &text)
{
    static constexpr const char16_t *kWords[] = {u"nan", u"infinity", u"+infinity", u"-infinity"};
    const QString trimmed = text.trimmed();
    bool isNumber = false;
    trimmed.toDouble(&isNumber);
    return isNumber || std::any_of(std::begin(kWords), std::end(kWords), [&](const char16_t *word) {
               return trimmed == QStringView(word);
           });
}

bool isDate(const QString &text)
{
    return text.endsWith(u'Z') &&
           PropertyListDate::isHeld(QDateTime::fromString(text, Qt::ISODate));
}

bool isBase64(const QString &text)
{
    QString digits;
    std::copy_if(text.begin(), text.end(), std::back_inserter(digits),
                 [](QChar character) { return !character.isSpace(); });
    return digits.size() % 4 == 0 &&
           QByteArray::fromBase64Encoding(digits.toLatin1(),
                                          QByteArray::AbortOnBase64DecodingErrors);
}

/// The text as one that needs no entities.
QByteArray quoted(const QString &text)
{
    QByteArray content = text.toUtf8();
    content.replace("]]>", "]]]]><![CDATA[>");
    return "<![CDATA[" + content + "]]>";
}

struct Scalar
{
    QLatin1String element;
    bool (*takes)(const QString &text);
};

constexpr Scalar kScalars[] = {
    {QLatin1String("string"), isText},   {QLatin1String("integer"), isInteger},
    {QLatin1String("real"), isReal},     {QLatin1String("true"), isNothing},
    {QLatin1String("false"), isNothing}, {QLatin1String("date"), isDate},
    {QLatin1String("data"), isBase64},
};
} // namespace

XMLPropertyListNormalizer::XMLPropertyListNormalizer(const QByteArray &data)
{
    const QString text = textOfUTF8(data);
    mIsUTF8 = !text.isNull();
    mReader.addData(text);
}

QByteArray XMLPropertyListNormalizer::normalized()
{
    if (!mIsUTF8) {
        return {};
    }
    mNormalized = "<plist>";
    readDocument();
    mNormalized.append("</plist>");
    return mReader.hasError() ? QByteArray() : mNormalized;
}

QString XMLPropertyListNormalizer::fault() const
{
    if (!mIsUTF8) {
        return QStringLiteral("the data is not in UTF-8");
    }
    if (!mReader.hasError()) {
        return {};
    }
    return QStringLiteral("line %1: %2").arg(mReader.lineNumber()).arg(mReader.errorString());
}

void XMLPropertyListNormalizer::readDocument()
{
    if (!goToNextElement()) {
        return;
    }
    if (mReader.name() != QLatin1String("plist")) {
        return mReader.raiseError(QStringLiteral("the data is no property list"));
    }
    if (!goToNextElement()) {
        mReader.raiseError(QStringLiteral("the property list is empty"));
        return;
    }
    readValue(0);
    if (goToNextElement()) {
        mReader.raiseError(QStringLiteral("there is a second value at the top level"));
    }
    while (!mReader.atEnd()) {
        mReader.readNext();
    }
}

void XMLPropertyListNormalizer::readValue(int depth)
{
    if (depth > PropertyListLimits::kDepth) {
        return mReader.raiseError(QStringLiteral("the values are nested too deeply"));
    }
    if (mReader.name() == QLatin1String("array")) {
        return readArray(depth);
    }
    if (mReader.name() == QLatin1String("dict")) {
        return readDictionary(depth);
    }
    readScalar();
}

void XMLPropertyListNormalizer::readArray(int depth)
{
    mNormalized.append("<array>");
    while (goToNextElement()) {
        readValue(depth + 1);
    }
    mNormalized.append("</array>");
}

void XMLPropertyListNormalizer::readDictionary(int depth)
{
    mNormalized.append("<dict>");
    while (goToNextElement()) {
        if (mReader.name() != QLatin1String("key")) {
            return mReader.raiseError(QStringLiteral("a value has no key"));
        }
        const QString key = mReader.readElementText();
        if (!goToNextElement()) {
            return mReader.raiseError(QStringLiteral("the key \"%1\" has no value").arg(key));
        }
        write(QStringLiteral("key"), quoted(key));
        readValue(depth + 1);
    }
    mNormalized.append("</dict>");
}

void XMLPropertyListNormalizer::readScalar()
{
    const QString element = mReader.name().toString();
    const auto *const scalar =
        std::find_if(std::begin(kScalars), std::end(kScalars),
                     [&](const Scalar &known) { return known.element == element; });
    if (scalar == std::end(kScalars)) {
        return mReader.raiseError(QStringLiteral("a property list holds no \"%1\"").arg(element));
    }
    const QString text = mReader.readElementText();
    if (mReader.hasError()) {
        return;
    }
    if (!scalar->takes(text)) {
        return mReader.raiseError(
            QStringLiteral("\"%1\" is no \"%2\"").arg(text.left(40), element));
    }
    write(element, scalar->takes == isText ? quoted(text) : text.trimmed().toUtf8());
}

/// Goes to the next element within the present one; false at the end of that and after a fault.
bool XMLPropertyListNormalizer::goToNextElement()
{
    while (!mReader.atEnd()) {
        switch (mReader.readNext()) {
        case QXmlStreamReader::StartElement:
            return true;
        case QXmlStreamReader::EndElement:
            return false;
        case QXmlStreamReader::DTD:
            if (mReader.text().contains(u'[')) {
                mReader.raiseError(QStringLiteral("the data declares a document type of its own"));
            }
            break;
        case QXmlStreamReader::Characters:
            if (!mReader.isWhitespace()) {
                mReader.raiseError(QStringLiteral("there is text between the values"));
            }
            break;
        default:
            break;
        }
    }
    return false;
}

void XMLPropertyListNormalizer::write(const QString &element, const QByteArray &content)
{
    const QByteArray name = element.toLatin1();
    mNormalized.append('<' + name + '>' + content + "</" + name + '>');
}
