// SPDX-License-Identifier: Apache-2.0
#include "textinput/PDETextField.h"

#include "printcore/NotificationCenter.h"
#include "textinput/FieldEdits.h"
#include "textinput/FormatterProperties.h"

#include <QDynamicPropertyChangeEvent>
#include <QPointer>

#include <utility>

PDETextField13_v400_::PDETextField13_v400_(QWidget *parent)
    : QLineEdit(parent)
{
    connect(FieldEdits::of(this), &FieldEdits::edited, this, &PDETextField13_v400_::noteEdit);
    connect(this, &QLineEdit::editingFinished, this, &PDETextField13_v400_::textDidEndEditing);
}

void PDETextField13_v400_::sendFirstResponderNotification(bool answer)
{
    if (!answer) {
        NotificationCenter::defaultCenter().postNotification(
            TextFieldResignFirstResponderNotification, this);
    }
}

bool PDETextField13_v400_::becomeFirstResponder()
{
    setFocus();
    const bool became = hasFocus();
    if (became) {
        sendFirstResponderNotification(true);
    }
    return became;
}

void PDETextField13_v400_::textDidChange()
{
    sendFirstResponderNotification(false);
}

void PDETextField13_v400_::textDidEndEditing()
{
    sendFirstResponderNotification(true);
}

void PDETextField13_v400_::setText(const QString &text)
{
    FieldEdits::byProgram(this, [this, &text] { QLineEdit::setText(text); });
}

void PDETextField13_v400_::clear()
{
    FieldEdits::byProgram(this, [this] { QLineEdit::clear(); });
}

void PDETextField13_v400_::selectText(QObject *)
{
    sendFirstResponderNotification(false);
}

bool PDETextField13_v400_::event(QEvent *event)
{
    if (event->type() == QEvent::DynamicPropertyChange) {
        const auto *change = static_cast<QDynamicPropertyChangeEvent *>(event);
        FormatterProperties::apply(this, change->propertyName());
    }
    const QPointer<PDETextField13_v400_> self(this);
    // An event may come while another one is handled, and brings edits of its own.
    const bool isWithinEvent = std::exchange(mHandlesEvent, true);
    const bool hasFormerEdit = std::exchange(mIsEdited, false);
    const bool handled = QLineEdit::event(event);
    if (!self) {
        return handled;
    }
    mHandlesEvent = isWithinEvent;
    if (std::exchange(mIsEdited, hasFormerEdit)) {
        textDidChange();
    }
    return handled;
}

void PDETextField13_v400_::noteEdit(const QString &before)
{
    // Whoever is told may destroy the field, so it has to be done with the edit by then.
    if (mHandlesEvent) {
        mIsEdited = true;
        return;
    }
    const auto tell = [this, before] {
        if (text() != before) {
            textDidChange();
        }
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

#include "moc_PDETextField.cpp"
