// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>
#include <QString>

#include <concepts>
#include <cstddef>
#include <type_traits>
#include <variant>

/**
 * One argument of a format, of whatever type the caller has.
 *
 * Objects and C strings are borrowed, and read when the text is made.
 */
class FormatArgument
{
public:
    /// An integer in the width of its own type, which is at least that of int.
    struct Integer
    {
        template <std::integral Number>
        explicit Integer(Number number)
            : unsignedValue(static_cast<std::make_unsigned_t<Number>>(number))
            , signedValue(static_cast<std::make_signed_t<Number>>(number))
            , isSigned(std::is_signed_v<Number>)
        {
        }

        quint64 unsignedValue;
        qint64 signedValue;
        bool isSigned;
    };

    /// Something at an address, with the words for it.
    struct Object
    {
        const void *address;
        QString (*describe)(const void *address);
    };

    using Value = std::variant<std::nullptr_t, Integer, double, QString, const char *, Object>;

    FormatArgument(std::nullptr_t) {}

    template <std::integral Number>
    FormatArgument(Number number)
        : mValue(Integer(+number))
    {
    }

    template <typename Enumerator>
        requires std::is_enum_v<Enumerator>
    FormatArgument(Enumerator enumerator)
        : FormatArgument(static_cast<std::underlying_type_t<Enumerator>>(enumerator))
    {
    }

    template <std::floating_point Number>
    FormatArgument(Number number)
        : mValue(static_cast<double>(number))
    {
    }

    /// A text; a null one is no object.
    FormatArgument(const QString &text);

    /// A C string in the system encoding; may be null.
    FormatArgument(const char *text);

    /// An object with a description() of its own, a QObject, or whatever else has an address.
    template <typename Type>
        requires(!std::same_as<std::remove_cv_t<Type>, char>)
    FormatArgument(Type *object)
    {
        if (object) {
            mValue = Object{object, &describe<std::remove_cv_t<Type>>};
        }
    }

    const Value &value() const { return mValue; }

    /// The argument in words: numbers in decimal, "(null)" for none.
    QString description() const;

private:
    template <typename Type>
    static QString describe(const void *address)
    {
        if constexpr (requires(const Type *object) { QString(object->description()); }) {
            return static_cast<const Type *>(address)->description();
        } else if constexpr (std::convertible_to<const Type *, const QObject *>) {
            return describeObject(static_cast<const Type *>(address));
        } else {
            return describeAddress(address);
        }
    }

    static QString describeObject(const QObject *object);
    static QString describeAddress(const void *address);

    Value mValue = nullptr;
};

/// The text of a C string in the system encoding, else in UTF-8, else one character for each byte.
QString textOfCString(const QByteArray &bytes);
