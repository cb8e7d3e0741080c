// SPDX-License-Identifier: Apache-2.0
#include "printcore/UTF8.h"

#include "printcore/QtVersions.h"

namespace {
constexpr char kByteOrderMark[] = "\xef\xbb\xbf";

bool isContinuation(char byte)
{
    return (byte & 0xc0) == 0x80;
}

/// The bytes of the character that starts with this one; 1 for what starts none.
QtSize sizeOfCharacter(char first)
{
    const auto byte = static_cast<quint8>(first);
    if (byte < 0xc2 || byte > 0xf4) {
        return 1;
    }
    if (byte < 0xe0) {
        return 2;
    }
    return byte < 0xf0 ? 3 : 4;
}
} // namespace

QString textOfUTF8(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    // What is malformed comes back as something else.
    const QByteArray again = text.toUtf8();
    if (again != bytes && kByteOrderMark + again != bytes) {
        return {};
    }
    return text.isNull() ? QStringLiteral("") : text;
}

QString textOfCutUTF8(const QByteArray &bytes)
{
    QtSize last = bytes.size() - 1;
    while (last > 0 && isContinuation(bytes[last])) {
        --last;
    }
    const bool isCut = last >= 0 && last + sizeOfCharacter(bytes[last]) > bytes.size();
    return textOfUTF8(isCut ? bytes.left(last) : bytes);
}
