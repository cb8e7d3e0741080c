// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>

/// The name of the notification of a change of a text field's text, or of a request to select it.
inline const QString TextFieldResignFirstResponderNotification =
    QStringLiteral("TextFieldResignFirstResponderNotification");

/**
 * A text field that tells observers when its text is being edited.
 *
 * It posts "TextFieldResignFirstResponderNotification" on the default notification centre, with
 * itself as the object, once for each change of the text that the program itself has not made and
 * for each request to select the text by selectText(); never when it gains or loses the keyboard
 * focus. The program's changes are those by setText() and clear(), called for what the field is:
 * assistive technology sets the text of any QLineEdit.
 *
 * An observer is told of an edit when the event that brought it is over. Of one from a menu, by
 * assistive technology or by the slots of QLineEdit it is told when the program waits for events
 * again, unless the text is by then what it was before. It may destroy the field; where a slot of
 * one of the field's signals waits for events, only with deleteLater().
 *
 * What the user selects is selected and not told, with the pointer and with Select All alike.
 *
 * A form may name a formatter by dynamic properties of the field, see FormatterProperties.
 */
class PDETextField13_v400_ : public QLineEdit
{
    Q_OBJECT
    /// For forms, whose texts are the program's.
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit PDETextField13_v400_(QWidget *parent = nullptr);

    /// Posts the notification when the answer is false.
    void sendFirstResponderNotification(bool answer);

    /// Takes the keyboard focus; posts nothing.
    /// @return whether the field has it.
    bool becomeFirstResponder();

    /// The user has edited the text: posts the notification.
    void textDidChange();

    /// The user is done with the text; posts nothing.
    void textDidEndEditing();

    /// Sets the text for the program; posts nothing.
    Q_SLOT void setText(const QString &text);
    /// Removes the text for the program; posts nothing.
    Q_SLOT void clear();

    /// Posts the notification, and leaves the selection as it is.
    Q_SLOT void selectText(QObject *sender = nullptr);

protected:
    bool event(QEvent *event) override;

private:
    void noteEdit(const QString &before);

    bool mHandlesEvent = false;
    bool mIsEdited = false;
};
