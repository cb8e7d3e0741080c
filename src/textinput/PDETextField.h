#pragma once

#include <QLineEdit>

/// The name of the notification of a change of a text field's text, or of a request to select it.
inline const QString TextFieldResignFirstResponderNotification =
    QStringLiteral("TextFieldResignFirstResponderNotification");

/**
 * A text field that tells observers when its text is being edited.
 *
 * It posts "TextFieldResignFirstResponderNotification" on the default notification centre, with
 * itself as the object, once for each change of the text by the user and for each request to select
 * the text by selectText(); never when it gains or loses the keyboard focus, nor when the program
 * sets the text. An observer may destroy the field: it is told of an edit when the event that
 * brought it is over, and of one from a menu or by the slots of QLineEdit when the program waits
 * for events again.
 *
 * What the user selects is selected and not told, with the pointer and with Select All alike.
 *
 * A form may name a formatter by dynamic properties of the field, see FormatterProperties.
 */
class PDETextField13_v400_ : public QLineEdit
{
    Q_OBJECT

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

    /// Posts the notification, and leaves the selection as it is.
    Q_SLOT void selectText(QObject *sender = nullptr);

protected:
    bool event(QEvent *event) override;

private:
    void noteEdit();

    bool mHandlesEvent = false;
    bool mEdited = false;
};
