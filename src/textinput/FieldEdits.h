// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QObject>

#include <functional>

class QLineEdit;

/**
 * Tells of each change of a line edit's text that the program itself has not made, by whatever
 * means: typed, pasted, composed, or set by assistive technology.
 *
 * What the program changes it changes by byProgram() or setText() below. Everything else is an
 * edit: a call of QLineEdit::setText() too, which is what assistive technology makes.
 */
class FieldEdits : public QObject
{
    Q_OBJECT

public:
    /// The object that watches the field, made when it is first asked for; owned by the field.
    static FieldEdits *of(QLineEdit *field);

    /// Lets the program change the field, which is no edit.
    static void byProgram(QLineEdit *field, const std::function<void()> &change);
    /// Gives the field another text for the program; does nothing for null. Where the field has
    /// that text, the caret, the selection and what can be undone stay.
    static void setText(QLineEdit *field, const QString &text);

Q_SIGNALS:
    /// The text has been changed by other means than byProgram() and setText().
    /// @param before the text before the change.
    void edited(const QString &before);

private:
    explicit FieldEdits(QLineEdit *field);
    void noteText(const QString &text);

    QString mText;
    bool mIsByProgram = false;
};
