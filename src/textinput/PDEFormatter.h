// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/TextRange.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>
#include <QVariant>

#include <memory>
#include <utility>

struct Notification;

/// The name of the notification of an edit with characters that the formatter refuses, or too many.
inline const QString InvalidCharacterNotification = QStringLiteral("InvalidCharacterNotification");
/// The name of the notification of an edit to a value out of the formatter's range.
inline const QString FormatErrorNotification = QStringLiteral("FormatErrorNotification");

/**
 * Checks each edit of a text field before the field takes it, and makes texts of values.
 *
 * A refused edit sounds the beep and posts one of the two notifications on the default centre; no
 * text is ever rewritten. The notification's object is the address of the offending character,
 * else that of the notification object, else that of the formatter.
 *
 * A null string or an invalid date stands for none.
 */
class PDEFormatter : public QObject
{
    Q_OBJECT

public:
    /// A formatter of style 0 with the format "%@".
    static std::unique_ptr<PDEFormatter> init();
    /// A formatter of that style, one of TextStyle or any other number, with the format "%@".
    static std::unique_ptr<PDEFormatter> initWithStyle(qint32 style);
    /// A formatter with that format, "%@" for none, and style 0 unless said otherwise.
    static std::unique_ptr<PDEFormatter> initWithFormatString(const QString &format,
                                                              qint32 style = 0);
    /// A formatter of style 5 that shows the date and has no format yet.
    static std::unique_ptr<PDEFormatter> initWithCalendarDate(const QDateTime &date,
                                                              const QVariantMap &locale);

    /// The format of displayed values; null until it is set when the formatter shows a date.
    QString formatString() const { return mFormatString; }
    /// Sets the format, "%@" for none.
    void setFormatString(const QString &format);

    /// The date that is shown in style 5.
    QDateTime calendarDate() const { return mDate; }
    void setCalendarDate(const QDateTime &date) { mDate = date; }

    /// Names and formats for the date, see descriptionWithCalendarFormat().
    QVariantMap calendarLocale() const { return mLocale; }
    void setCalendarLocale(const QVariantMap &locale) { mLocale = locale; }

    /// What notifications are about unless it is a character; null for the formatter itself.
    std::shared_ptr<const void> notificationObject() const { return mObject; }
    void setNotificationObject(std::shared_ptr<const void> object) { mObject = std::move(object); }

    qint32 textStyle() const { return mTextStyle; }
    void setTextStyle(qint32 style) { mTextStyle = style; }

    /// The most bytes of the system encoding that a text may have; 0 for any number.
    qint32 maxLength() const { return mMaxLength; }
    void setMaxLength(qint32 length) { mMaxLength = length; }

    qint32 maxValue() const { return mMaxValue; }
    /// Sets the largest value and has it checked.
    void setMaxValue(qint32 value);
    qint32 minValue() const { return mMinValue; }
    /// Sets the smallest value and has it checked.
    void setMinValue(qint32 value);

    bool isValidityMaxValue() const { return mIsValidityMaxValue; }
    /// Says whether the largest value is checked.
    void setValidityMaxValue(bool checked) { mIsValidityMaxValue = checked; }
    bool isValidityMinValue() const { return mIsValidityMinValue; }
    /// Says whether the smallest value is checked.
    void setValidityMinValue(bool checked) { mIsValidityMinValue = checked; }

    /// Adds a string to the refused ones, also when it is one of them already; does nothing for
    /// null.
    void addInvalidCharacter(const QString &string);
    /// Removes the first refused string that compares equal, and all that are identical to that
    /// one.
    void removeInvalidCharacter(const QString &string);
    /// Whether a refused string compares equal to the whole string, however its accents are coded.
    bool isInvalidCharacter(const QString &string) const;

    /**
     * The text that shows a value: the date in style 5 with a date, else the value by the format,
     * as an integer when the style is 2 or 4 and the format has no "%@".
     *
     * @param object a text or a number; an invalid one is shown as "(null)", and counts 0.
     */
    QString stringForObjectValue(const QVariant &object) const;

    /**
     * Sets the value of a text: the text as it would be shown, never a number.
     *
     * @param object where the value goes; nothing is set when it or the text is null.
     * @param errorDescription never set; may be null.
     * @return always true.
     */
    bool getObjectValue(QVariant *object, const QString &string, QString *errorDescription) const;

    /**
     * Whether an edit is allowed. An edit that does not move the caret forward always is; otherwise
     * the text between the carets must satisfy the rules, or the observers are notified.
     *
     * Observers may do anything then, even destroy the formatter.
     *
     * @param proposedText the text after the edit; none for no check.
     * @param proposedSelectedRange the selection or caret after the edit; null for no check.
     * @param originalString the text before the edit; may be none.
     * @param originalSelectedRange the selection or caret before the edit.
     * @param errorDescription never set; may be null.
     */
    virtual bool isPartialStringValid(const QString &proposedText,
                                      const TextRange *proposedSelectedRange,
                                      const QString &originalString,
                                      const TextRange &originalSelectedRange,
                                      QString *errorDescription);

    /// The character that the notification which is being posted is about; null when it is about
    /// something else.
    static const QString *offendingCharacter(const Notification &notification);

protected:
    PDEFormatter() = default;

private:
    /// Why an edit is refused: the notification's name, null when it is not, and the character.
    struct Refusal
    {
        QString name;
        QString character;
    };

    Refusal refusalOf(const QString &typed, const QString &proposedText,
                      const QString &originalString) const;
    Refusal refusalOfCharacters(const QString &typed, const QString &proposedText,
                                const QString &originalString) const;
    bool isLongerThanAllowed(const QString &text) const;
    bool isOutOfRange(const QString &text) const;
    void tell(const Refusal &refusal) const;

    QString mFormatString;
    qint32 mTextStyle = 0;
    qint32 mMaxLength = 0;
    bool mIsValidityMaxValue = false;
    bool mIsValidityMinValue = false;
    qint32 mMaxValue = 0;
    qint32 mMinValue = 0;
    std::shared_ptr<const void> mObject;
    QStringList mInvalidCaracters;
    QDateTime mDate;
    QVariantMap mLocale;
};
