// SPDX-License-Identifier: Apache-2.0
#include "textinput/PDEFormatter.h"

#include "ppd/PDEUtilsMethod.h"
#include "printcore/Beep.h"
#include "printcore/IntegerValue.h"
#include "printcore/NotificationCenter.h"
#include "printcore/QtVersions.h"
#include "printcore/SystemEncoding.h"
#include "textinput/CalendarFormat.h"
#include "textinput/FormatString.h"
#include "textinput/TextStyle.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
const QString objectFormat = QStringLiteral("%@");
const QString dateFormat = QStringLiteral("%Y-%m-%d %H:%M:%S %z");

/// The character of the notification that is being posted.
const QString *toldCharacter = nullptr;

/// The text with its accents as characters of their own.
QString decomposed(const QString &text)
{
    // Piece by piece, because a long text with many accents takes QString too long.
    constexpr QtSize pieceLength = 64;
    QString result;
    QtSize start = 0;
    for (QtSize i = 0; i < text.size(); ++i) {
        const bool isAccent = text[i].combiningClass() != 0 || text[i].isSurrogate();
        if (i - start >= pieceLength && !isAccent) {
            result += text.mid(start, i - start).normalized(QString::NormalizationForm_D);
            start = i;
        }
    }
    return result + text.mid(start).normalized(QString::NormalizationForm_D);
}

/// The first of the strings that is the same to a reader, in whichever way its accents are coded.
QStringList::const_iterator findEqual(const QStringList &strings, const QString &string)
{
    if (strings.isEmpty()) {
        return strings.end();
    }
    const QString plain = decomposed(string);
    return std::find_if(strings.begin(), strings.end(),
                        [&plain](const QString &other) { return decomposed(other) == plain; });
}

QString textBetween(const QString &text, QtSize start, QtSize end)
{
    const QtSize first = std::clamp<QtSize>(start, 0, text.size());
    return text.mid(first, std::clamp(end, first, text.size()) - first);
}

/// Bytes of the text in the system encoding; its characters when that cannot hold it.
qint64 lengthInBytes(const QString &text)
{
    const auto bytes = SystemEncoding::encode(text);
    return bytes ? bytes->size() : text.size();
}

bool isASCII(const QString &text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar character) { return character.unicode() < 0x80; });
}

bool isMacOSRoman(const QString &text)
{
    return SystemEncoding::encode(text, SystemEncoding::kMacOSRoman).has_value();
}

FormatArgument argumentOf(const QVariant &object)
{
    switch (object.userType()) {
    case QMetaType::UnknownType:
        return nullptr;
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::LongLong:
        return object.toLongLong();
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return object.toULongLong();
    case QMetaType::Double:
        return object.toDouble();
    default:
        return object.toString();
    }
}

/// The number without its fraction; the nearest limit of 32 bits beyond them, 0 for no number.
qint32 truncated(double number)
{
    constexpr double smallest = std::numeric_limits<qint32>::min();
    constexpr double largest = std::numeric_limits<qint32>::max();
    return std::isnan(number) ? 0 : qint32(std::clamp(number, smallest, largest));
}

qint32 intValue(const QVariant &object)
{
    switch (object.userType()) {
    case QMetaType::QString:
        return integerValue(object.toString());
    case QMetaType::Float:
    case QMetaType::Double:
        return truncated(object.toDouble());
    default:
        return qint32(object.toLongLong());
    }
}
} // namespace

std::unique_ptr<PDEFormatter> PDEFormatter::init()
{
    return initWithFormatString({});
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithStyle(qint32 style)
{
    return initWithFormatString({}, style);
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithFormatString(const QString &format,
                                                                 qint32 style)
{
    std::unique_ptr<PDEFormatter> formatter(new PDEFormatter);
    formatter->setFormatString(format);
    formatter->setTextStyle(style);
    return formatter;
}

std::unique_ptr<PDEFormatter> PDEFormatter::initWithCalendarDate(const QDateTime &date,
                                                                 const QVariantMap &locale)
{
    std::unique_ptr<PDEFormatter> formatter(new PDEFormatter);
    formatter->setTextStyle(DateText);
    formatter->setCalendarDate(date);
    formatter->setCalendarLocale(locale);
    return formatter;
}

void PDEFormatter::setFormatString(const QString &format)
{
    mFormatString = format.isNull() ? objectFormat : format;
}

void PDEFormatter::setMaxValue(qint32 value)
{
    mMaxValue = value;
    setValidityMaxValue(true);
}

void PDEFormatter::setMinValue(qint32 value)
{
    mMinValue = value;
    setValidityMinValue(true);
}

void PDEFormatter::addInvalidCharacter(const QString &string)
{
    if (!string.isNull()) {
        mInvalidCaracters.append(string);
    }
}

void PDEFormatter::removeInvalidCharacter(const QString &string)
{
    const auto equal = findEqual(mInvalidCaracters, string);
    if (!string.isNull() && equal != mInvalidCaracters.cend()) {
        mInvalidCaracters.removeAll(QString(*equal));
    }
}

bool PDEFormatter::isInvalidCharacter(const QString &string) const
{
    return !string.isNull() && findEqual(mInvalidCaracters, string) != mInvalidCaracters.cend();
}

QString PDEFormatter::stringForObjectValue(const QVariant &object) const
{
    if (mTextStyle == DateText && mDate.isValid()) {
        return descriptionWithCalendarFormat(
            mDate, mFormatString.isNull() ? dateFormat : mFormatString, mLocale);
    }
    const QString format = mFormatString.isNull() ? objectFormat : mFormatString;
    if (StyleRules::of(mTextStyle).checksValue && !format.contains(objectFormat)) {
        return stringWithFormat(format, {intValue(object)});
    }
    return stringWithFormat(format, {argumentOf(object)});
}

bool PDEFormatter::getObjectValue(QVariant *object, const QString &string, QString *) const
{
    if (object && !string.isNull()) {
        *object = stringForObjectValue(string);
    }
    return true;
}

bool PDEFormatter::isPartialStringValid(const QString &proposedText,
                                        const TextRange *proposedSelectedRange,
                                        const QString &originalString,
                                        const TextRange &originalSelectedRange, QString *)
{
    if (!proposedSelectedRange) {
        return true;
    }
    const QString typed =
        textBetween(proposedText, originalSelectedRange.location, proposedSelectedRange->location);
    if (typed.isEmpty()) {
        return true;
    }
    const Refusal refusal = refusalOf(typed, proposedText, originalString);
    if (refusal.name.isNull()) {
        return true;
    }
    tell(refusal);
    return false;
}

// Of the failures of all characters the last one counts. Most rules are about the whole text, so
// that they fail for every character or for none.
PDEFormatter::Refusal PDEFormatter::refusalOf(const QString &typed, const QString &proposedText,
                                              const QString &originalString) const
{
    const bool anyText = StyleRules::of(mTextStyle).takesAnyText();
    if ((!anyText && !isMacOSRoman(typed)) || isInvalidCharacter(typed)) {
        return {InvalidCharacterNotification, typed.right(1)};
    }
    if (isLongerThanAllowed(proposedText)) {
        return {InvalidCharacterNotification, {}};
    }
    if (anyText) {
        return {};
    }
    if (!isASCII(typed)) {
        return {InvalidCharacterNotification, {}};
    }
    return refusalOfCharacters(typed, proposedText, originalString);
}

PDEFormatter::Refusal PDEFormatter::refusalOfCharacters(const QString &typed,
                                                        const QString &proposedText,
                                                        const QString &originalString) const
{
    const StyleRules &rules = StyleRules::of(mTextStyle);
    const QString point = QStringLiteral(".");
    const bool hasPoint = rules.onePoint && PDEUtilsMethod13::scanString(originalString, point);
    const auto isAccepted = [&rules, hasPoint](QChar character) {
        return rules.accepts(character) && !(hasPoint && character == u'.');
    };
    if (rules.checksValue && isOutOfRange(proposedText)) {
        return {isAccepted(typed.back()) ? FormatErrorNotification : InvalidCharacterNotification,
                {}};
    }
    if (!std::all_of(typed.begin(), typed.end(), isAccepted)) {
        return {InvalidCharacterNotification, {}};
    }
    return {};
}

bool PDEFormatter::isLongerThanAllowed(const QString &text) const
{
    return mMaxLength != 0 && mMaxLength < lengthInBytes(text);
}

/// Whether the value, which counts only once the text is as long as it may be, is too large or too
/// small.
bool PDEFormatter::isOutOfRange(const QString &text) const
{
    if (mMaxLength != 0 && mMaxLength != lengthInBytes(text)) {
        return false;
    }
    const qint32 value = integerValue(text);
    return (mIsValidityMaxValue && value > mMaxValue) || (mIsValidityMinValue && value < mMinValue);
}

void PDEFormatter::tell(const Refusal &refusal) const
{
    // Whoever is told may destroy the formatter, or give it another notification object.
    const std::shared_ptr<const void> kept = mObject;
    const void *object = kept ? kept.get() : this;
    if (!refusal.character.isNull()) {
        object = &refusal.character;
    }
    NSBeep();
    const QScopedValueRollback<const QString *> told(
        toldCharacter, refusal.character.isNull() ? nullptr : &refusal.character);
    NotificationCenter::defaultCenter().postNotification(refusal.name, object);
}

const QString *PDEFormatter::offendingCharacter(const Notification &notification)
{
    return notification.object == toldCharacter ? toldCharacter : nullptr;
}

#include "moc_PDEFormatter.cpp"
