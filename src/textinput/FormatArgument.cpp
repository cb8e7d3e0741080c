// SPDX-License-Identifier: Apache-2.0
#include "textinput/FormatArgument.h"

#include "printcore/SystemEncoding.h"
#include "printcore/UTF8.h"

#include <QLocale>

namespace {
/// An argument's value in words.
struct Describer
{
    QString operator()(std::nullptr_t) const { return QStringLiteral("(null)"); }
    QString operator()(const FormatArgument::Integer &integer) const
    {
        return integer.isSigned ? QString::number(integer.signedValue)
                                : QString::number(integer.unsignedValue);
    }
    QString operator()(double number) const
    {
        return QString::number(number, 'g', QLocale::FloatingPointShortest);
    }
    QString operator()(const QString &text) const { return text; }
    QString operator()(const char *text) const { return textOfCString(text); }
    QString operator()(const FormatArgument::Object &object) const
    {
        return object.describe(object.address);
    }
};
} // namespace

FormatArgument::FormatArgument(const QString &text)
{
    if (!text.isNull()) {
        mValue = text;
    }
}

FormatArgument::FormatArgument(const char *text)
{
    if (text) {
        mValue = text;
    }
}

QString FormatArgument::description() const
{
    return std::visit(Describer(), mValue);
}

QString FormatArgument::describeObject(const QObject *object)
{
    const QString name = object->objectName();
    return QStringLiteral("<%1 %2%3>")
        .arg(QLatin1String(object->metaObject()->className()), describeAddress(object),
             name.isEmpty() ? QString() : QStringLiteral(" \"%1\"").arg(name));
}

QString FormatArgument::describeAddress(const void *address)
{
    return QStringLiteral("0x") + QString::number(quintptr(address), 16);
}

QString textOfCString(const QByteArray &bytes)
{
    QString text = SystemEncoding::decode(bytes.constData());
    if (text.isNull()) {
        // A precision may have cut off a character.
        text = textOfCutUTF8(bytes);
        return text.isNull() ? QString::fromLatin1(bytes) : text;
    }
    return text;
}
