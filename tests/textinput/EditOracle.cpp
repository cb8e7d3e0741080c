// SPDX-License-Identifier: Apache-2.0
#include "EditOracle.h"

#include "printcore/SystemEncoding.h"

#include <QMap>

#include <limits>

namespace {
const QString digits = u"0123456789"_s;
const QString letters = u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"_s;

/// What the styles with a rule accept.
const QMap<qint32, QString> accepted = {
    {2, digits},
    {4, digits + u"."_s},
    {6, digits + letters + u" "_s},
    {7, letters + digits + u" $%+-./"_s},
    {8, digits + u"$+-./:"_s},
    {9, digits + u"$+-./:ABCDabcd"_s},
    {10, letters + digits + u" !\"#$%&'()*+,-./:;<=>?@[\\]^_`{|}~"_s},
    {11, letters + digits + u" !\"%'()*+,-./:;<=>?_"_s},
};

/// The characters of Mac OS Roman beyond ASCII.
const QString romans =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø¿¡¬√ƒ≈∆«»…\u00a0ÀÃÕŒœ–"
    u"—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uf8ffÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ"_s;

bool isASCII(const QString &text)
{
    for (const QChar character : text) {
        if (character.unicode() > 127) {
            return false;
        }
    }
    return true;
}

bool isRoman(const QString &text)
{
    for (const QChar character : text) {
        if (character.unicode() > 127 && !romans.contains(character)) {
            return false;
        }
    }
    return true;
}

bool hasHalfAPair(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate()) {
            ++i;
        } else if (text[i].isSurrogate()) {
            return true;
        }
    }
    return false;
}

qint64 byteCount(const QString &text)
{
    const bool isUnicode = SystemEncoding::name().startsWith("UTF");
    if (!isUnicode || hasHalfAPair(text)) {
        // One byte for each character in what is left, and characters where it cannot be encoded.
        return text.size();
    }
    if (SystemEncoding::name() == "UTF-16BE") {
        return 2 * text.size();
    }
    qint64 bytes = 0;
    for (const QChar unit : text) {
        // Each half of a pair stands for two of its four bytes.
        bytes += unit.unicode() < 0x80 ? 1 : unit.unicode() < 0x800 || unit.isSurrogate() ? 2 : 3;
    }
    return bytes;
}

qint64 intValue(QString text)
{
    while (!text.isEmpty() && text.front().isSpace()) {
        text.remove(0, 1);
    }
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+')) {
        text.remove(0, 1);
    }
    QString number;
    for (const QChar character : text) {
        if (!digits.contains(character)) {
            break;
        }
        number += character;
    }
    while (number.startsWith(u'0')) {
        number.remove(0, 1);
    }
    const qint64 size = number.size() > 10 ? 9'999'999'999 : number.toLongLong();
    constexpr qint64 least = std::numeric_limits<qint32>::min();
    constexpr qint64 most = std::numeric_limits<qint32>::max();
    return qBound(least, negative ? -size : size, most);
}

bool isRefusedString(const CheckedEdit &edit, const QString &typed)
{
    for (const QString &refused : edit.refusedStrings) {
        if (refused.normalized(QString::NormalizationForm_C) ==
            typed.normalized(QString::NormalizationForm_C)) {
            return true;
        }
    }
    return false;
}

QString typedText(const CheckedEdit &edit)
{
    const qint64 from = edit.originalSelection.location;
    const qint64 to = edit.proposedSelection->location;
    QString typed;
    for (int i = 0; i < edit.proposedText.size(); ++i) {
        if (i >= from && i < to) {
            typed += edit.proposedText[i];
        }
    }
    return typed;
}
} // namespace

bool isOfStyle(qint32 style, QChar character)
{
    if (style == 0) {
        return true;
    }
    return character.unicode() < 128 &&
           (!accepted.contains(style) || accepted[style].contains(character));
}

Verdict verdictOn(const CheckedEdit &edit)
{
    const QString invalid = u"InvalidCharacterNotification"_s;
    if (edit.proposedText.isEmpty() || !edit.proposedSelection) {
        return {};
    }
    const QString typed = typedText(edit);
    Verdict verdict;
    for (const QChar character : typed) {
        if ((edit.style != 0 && !isRoman(typed)) || isRefusedString(edit, typed)) {
            verdict = {invalid, character};
            continue;
        }
        const qint64 size = byteCount(edit.proposedText);
        if (edit.maxLength != 0 && edit.maxLength < size) {
            verdict.notification = invalid;
            continue;
        }
        if (edit.style == 0) {
            continue;
        }
        if (!isASCII(typed)) {
            verdict.notification = invalid;
            continue;
        }
        if (!isOfStyle(edit.style, character) ||
            (edit.style == 4 && character == u'.' && edit.originalText.contains(u'.'))) {
            verdict.notification = invalid;
            continue;
        }
        const bool hasRange = edit.style == 2 || edit.style == 4;
        if (hasRange && (edit.maxLength == 0 || edit.maxLength == size)) {
            const qint64 value = intValue(edit.proposedText);
            const bool isTooLarge = edit.maxValue && value > *edit.maxValue;
            const bool isTooSmall = edit.minValue && value < *edit.minValue;
            if (isTooLarge || isTooSmall) {
                verdict.notification = u"FormatErrorNotification"_s;
            }
        }
    }
    return verdict;
}
