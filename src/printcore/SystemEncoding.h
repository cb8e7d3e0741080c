// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <span>

/// Text in the encodings that the system uses, through ICU.
namespace SystemEncoding {
/// The name of the system encoding, which is the locale's codeset: "UTF-8".
KVPRINTCORE_EXPORT QByteArray name();

/// The further encodings that a text may be measured in, most wanted first.
KVPRINTCORE_EXPORT std::span<const char *const> availableStringEncodings();

/// The name of Mac OS Roman, for encode().
inline constexpr char kMacOSRoman[] = "macintosh";

/// The text's bytes in an encoding; nothing when it cannot hold the text or is not known.
KVPRINTCORE_EXPORT std::optional<QByteArray> encode(const QString &text,
                                                    const QByteArray &encoding);

/// The text's bytes in the system encoding; nothing when it cannot hold the text.
KVPRINTCORE_EXPORT std::optional<QByteArray> encode(const QString &text);

/// A C string in the system encoding as text; null for a null pointer or malformed bytes.
KVPRINTCORE_EXPORT QString decode(const char *bytes);
} // namespace SystemEncoding
