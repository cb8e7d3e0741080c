// SPDX-License-Identifier: Apache-2.0
#include "printcore/SystemEncoding.h"

#include "printcore/QtVersions.h"

#include <QHashFunctions>

#include <unicode/ucnv.h>

#include <langinfo.h>

#include <cstring>
#include <limits>
#include <memory>
#include <unordered_map>
#include <utility>

namespace {
constexpr const char *kAvailableEncodings[] = {
    "US-ASCII",  "ISO-8859-1", "macintosh", "windows-1252", "ISO-8859-2",
    "Shift_JIS", "EUC-JP",     "UTF-16BE",  "UTF-8",
};

struct ConverterCloser
{
    void operator()(UConverter *converter) const { ucnv_close(converter); }
};
using ConverterPointer = std::unique_ptr<UConverter, ConverterCloser>;

// ICU's own stop callbacks pass over what is invisible (a soft hyphen, say); these do not.
void refuseText(const void *, UConverterFromUnicodeArgs *, const UChar *, int32_t, UChar32,
                UConverterCallbackReason, UErrorCode *)
{
}

void refuseBytes(const void *, UConverterToUnicodeArgs *, const char *, int32_t,
                 UConverterCallbackReason, UErrorCode *)
{
}

ConverterPointer openConverter(const QByteArray &encoding)
{
    // ICU takes an empty name for its default converter.
    if (encoding.isEmpty()) {
        return {};
    }
    UErrorCode status = U_ZERO_ERROR;
    ConverterPointer converter(ucnv_open(encoding.constData(), &status));
    if (U_FAILURE(status)) {
        return {};
    }
    ucnv_setFromUCallBack(converter.get(), refuseText, nullptr, nullptr, nullptr, &status);
    ucnv_setToUCallBack(converter.get(), refuseBytes, nullptr, nullptr, nullptr, &status);
    ucnv_setFallback(converter.get(), false);
    return U_SUCCESS(status) ? std::move(converter) : ConverterPointer();
}

/// The converter of an encoding, opened once; null when the encoding is not known.
UConverter *converterFor(const QByteArray &encoding)
{
    static std::unordered_map<QByteArray, ConverterPointer> converters;
    const auto known = converters.find(encoding);
    if (known != converters.end()) {
        return known->second.get();
    }
    ConverterPointer converter = openConverter(encoding);
    if (!converter) {
        return nullptr;
    }
    return converters.emplace(encoding, std::move(converter)).first->second.get();
}

/// Runs a conversion of ICU's into a buffer, once more when the first one was too short.
template <typename Buffer, typename Conversion>
bool convert(Buffer &buffer, QtSize firstLength, Conversion conversion)
{
    if (firstLength > std::numeric_limits<int32_t>::max()) {
        return false;
    }
    buffer.resize(firstLength);
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = conversion(buffer, &status);
    if (status == U_BUFFER_OVERFLOW_ERROR) {
        buffer.resize(length);
        status = U_ZERO_ERROR;
        length = conversion(buffer, &status);
    }
    if (U_FAILURE(status)) {
        return false;
    }
    buffer.resize(length);
    return true;
}
} // namespace

QByteArray SystemEncoding::name()
{
    return nl_langinfo(CODESET);
}

std::span<const char *const> SystemEncoding::availableStringEncodings()
{
    return kAvailableEncodings;
}

std::optional<QByteArray> SystemEncoding::encode(const QString &text, const QByteArray &encoding)
{
    UConverter *const converter = converterFor(encoding);
    if (!converter) {
        return std::nullopt;
    }
    QByteArray bytes;
    const bool converted = convert(bytes, text.size(), [&](QByteArray &buffer, UErrorCode *status) {
        return ucnv_fromUChars(converter, buffer.data(), static_cast<int32_t>(buffer.size()),
                               reinterpret_cast<const UChar *>(text.utf16()),
                               static_cast<int32_t>(text.size()), status);
    });
    if (!converted) {
        return std::nullopt;
    }
    return bytes;
}

std::optional<QByteArray> SystemEncoding::encode(const QString &text)
{
    return encode(text, name());
}

QString SystemEncoding::decode(const char *bytes)
{
    UConverter *const converter = bytes ? converterFor(name()) : nullptr;
    if (!converter) {
        return {};
    }
    const size_t length = std::strlen(bytes);
    QString text(QLatin1String(""));
    const bool converted =
        convert(text, static_cast<QtSize>(length), [&](QString &buffer, UErrorCode *status) {
            return ucnv_toUChars(converter, reinterpret_cast<UChar *>(buffer.data()),
                                 static_cast<int32_t>(buffer.size()), bytes,
                                 static_cast<int32_t>(length), status);
        });
    return converted ? text : QString();
}
