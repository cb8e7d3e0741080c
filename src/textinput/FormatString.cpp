// SPDX-License-Identifier: Apache-2.0
#include "textinput/FormatString.h"

#include "printcore/QtVersions.h"

#include <clocale>
#include <cstdio>
#include <cstring>
#include <optional>
#include <span>

namespace {
constexpr qint64 kLongestField = 65536;

/// What stands between a percent sign and the end of its placeholder.
struct Placeholder
{
    QByteArray flags;
    int width = 0;
    /// Negative without one.
    int precision = -1;
    int shorts = 0;
    char16_t conversion = 0;
};

/// The plain locale's numbers for as long as it lives, in this thread.
class PlainNumbers
{
public:
    PlainNumbers()
        : mFormer(uselocale(plain()))
    {
    }
    ~PlainNumbers() { uselocale(mFormer); }
    PlainNumbers(const PlainNumbers &) = delete;
    PlainNumbers &operator=(const PlainNumbers &) = delete;

private:
    static locale_t plain()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t mFormer;
};

template <typename Number>
QString numberText(const Placeholder &place, const char *length, Number number)
{
    const QByteArray format =
        '%' + place.flags + "*.*" + length + static_cast<char>(place.conversion);
    const PlainNumbers plain;
    const auto print = [&](char *text, int size) {
        return std::snprintf(text, std::size_t(size), format.constData(), place.width,
                             place.precision, number);
    };
    const int size = print(nullptr, 0);
    // One byte more for the null character.
    QByteArray text(size + 1, Qt::Uninitialized);
    print(text.data(), size + 1);
    return QString::fromLatin1(text.left(size));
}

QString padded(const Placeholder &place, const QString &text)
{
    return place.flags.contains('-') ? text.leftJustified(place.width)
                                     : text.rightJustified(place.width);
}

template <typename Signed>
Signed narrowed(const Placeholder &place, Signed number)
{
    if (place.shorts == 0) {
        return number;
    }
    return place.shorts == 1 ? static_cast<Signed>(static_cast<qint16>(number))
                             : static_cast<Signed>(static_cast<qint8>(number));
}

template <typename Value>
const Value *valueOf(const FormatArgument &argument)
{
    return std::get_if<Value>(&argument.value());
}

// Each filler answers nothing for an argument that it has no use for.
using Filler = std::optional<QString> (*)(const Placeholder &, const FormatArgument &);

std::optional<QString> fillWords(const Placeholder &place, const FormatArgument &argument)
{
    const QString words = argument.description();
    return padded(place, place.precision < 0 ? words : words.left(place.precision));
}

std::optional<QString> fillCString(const Placeholder &place, const FormatArgument &argument)
{
    const auto *const text = valueOf<const char *>(argument);
    if (!text || place.precision < 0) {
        return fillWords(place, argument);
    }
    const auto size = QtSize(strnlen(*text, size_t(place.precision)));
    return padded(place, textOfCString(QByteArray(*text, size)));
}

std::optional<QString> fillSigned(const Placeholder &place, const FormatArgument &argument)
{
    if (const auto *const integer = valueOf<FormatArgument::Integer>(argument)) {
        return numberText(place, "ll", qlonglong(narrowed(place, integer->signedValue)));
    }
    return std::nullopt;
}

std::optional<QString> fillUnsigned(const Placeholder &place, const FormatArgument &argument)
{
    static constexpr quint64 masks[] = {~quint64(0), 0xffff, 0xff};
    if (const auto *const integer = valueOf<FormatArgument::Integer>(argument)) {
        return numberText(place, "ll", qulonglong(integer->unsignedValue & masks[place.shorts]));
    }
    return std::nullopt;
}

std::optional<QString> fillReal(const Placeholder &place, const FormatArgument &argument)
{
    if (const auto *const number = valueOf<double>(argument)) {
        return numberText(place, "", *number);
    }
    if (const auto *const integer = valueOf<FormatArgument::Integer>(argument)) {
        return numberText(place, "",
                          integer->isSigned ? double(integer->signedValue)
                                            : double(integer->unsignedValue));
    }
    return std::nullopt;
}

std::optional<QString> fillCharacter(const Placeholder &place, const FormatArgument &argument)
{
    const auto *const integer = valueOf<FormatArgument::Integer>(argument);
    if (!integer) {
        return std::nullopt;
    }
    // A char may be signed.
    const qint64 code = integer->signedValue >= -128 && integer->signedValue < 0
                            ? integer->signedValue + 256
                            : integer->signedValue;
    if (code < 0 || code > qint64(QChar::LastValidCodePoint)) {
        return std::nullopt;
    }
    const auto character = static_cast<char32_t>(code);
    return padded(place, QString::fromUcs4(&character, 1));
}

std::optional<QString> fillAddress(const Placeholder &place, const FormatArgument &argument)
{
    const void *address = nullptr;
    if (const auto *const object = valueOf<FormatArgument::Object>(argument)) {
        address = object->address;
    } else if (const auto *const text = valueOf<const char *>(argument)) {
        address = *text;
    } else if (!valueOf<std::nullptr_t>(argument)) {
        return std::nullopt;
    }
    return padded(place, QStringLiteral("0x") + QString::number(quintptr(address), 16));
}

struct Conversion
{
    const char16_t *letters;
    Filler fill;
};

constexpr Conversion kConversions[] = {
    {u"@", fillWords},       {u"s", fillCString},    {u"di", fillSigned}, {u"uxXo", fillUnsigned},
    {u"fFeEgGaA", fillReal}, {u"cC", fillCharacter}, {u"p", fillAddress},
};

Filler fillerOf(char16_t letter)
{
    for (const Conversion &conversion : kConversions) {
        if (QStringView(conversion.letters).contains(letter)) {
            return conversion.fill;
        }
    }
    return nullptr;
}

/// Makes one text of a format and its arguments.
class Formatting
{
public:
    Formatting(QStringView format, std::span<const FormatArgument> arguments)
        : mFormat(format)
        , mArguments(arguments)
    {
    }

    QString text()
    {
        while (!mFormat.isEmpty()) {
            const qsizetype percent = mFormat.indexOf(u'%');
            mText += taken(percent < 0 ? mFormat.size() : percent);
            if (!mFormat.isEmpty()) {
                appendPlaceholder();
            }
        }
        return mText;
    }

private:
    void appendPlaceholder()
    {
        const QStringView whole = mFormat;
        taken(1);
        const Placeholder place = readPlaceholder();
        const QStringView itself = whole.left(whole.size() - mFormat.size());
        const Filler fill = fillerOf(place.conversion);
        const FormatArgument *const argument = fill ? nextArgument() : nullptr;
        if (place.conversion == u'%') {
            mText += u'%';
        } else if (!argument) {
            mText += itself;
        } else {
            const std::optional<QString> text = fill(place, *argument);
            mText += text ? *text : padded(place, argument->description());
        }
    }

    Placeholder readPlaceholder()
    {
        Placeholder place;
        place.flags = takenWhile(u"-+ #0'").toLatin1();
        const int width = takenNumber();
        if (width < 0) {
            place.flags += '-';
        }
        place.width = qAbs(width);
        if (mFormat.startsWith(u'.')) {
            taken(1);
            place.precision = takenNumber();
        }
        place.shorts = qMin(int(takenWhile(u"hlqjztL").count(u'h')), 2);
        place.conversion = mFormat.isEmpty() ? char16_t(0) : taken(1).front().unicode();
        return place;
    }

    /// A number of the format's, or an argument's in place of an asterisk; 0 without one.
    int takenNumber()
    {
        qint64 number = 0;
        if (mFormat.startsWith(u'*')) {
            taken(1);
            const FormatArgument *const argument = nextArgument();
            const auto *const integer =
                argument ? valueOf<FormatArgument::Integer>(*argument) : nullptr;
            number = integer ? integer->signedValue : 0;
        } else {
            for (const QChar digit : takenWhile(u"0123456789")) {
                number = qMin(number * 10 + digit.digitValue(), kLongestField);
            }
        }
        return int(qBound(-kLongestField, number, kLongestField));
    }

    QStringView takenWhile(QStringView characters)
    {
        qsizetype length = 0;
        while (length < mFormat.size() && characters.contains(mFormat[length])) {
            ++length;
        }
        return taken(length);
    }

    QStringView taken(qsizetype length)
    {
        const QStringView start = mFormat.left(length);
        mFormat = mFormat.mid(length);
        return start;
    }

    const FormatArgument *nextArgument()
    {
        return mNext < mArguments.size() ? &mArguments[mNext++] : nullptr;
    }

    QStringView mFormat;
    std::span<const FormatArgument> mArguments;
    std::size_t mNext = 0;
    QString mText;
};
} // namespace

QString stringWithFormat(const QString &format, std::initializer_list<FormatArgument> arguments)
{
    return format.isNull() ? QStringLiteral("(null)")
                           : Formatting(format, {arguments.begin(), arguments.size()}).text();
}
