// SPDX-License-Identifier: Apache-2.0
#include "textinput/FieldText.h"

#include <QLineEdit>

FieldText FieldText::of(const QLineEdit &field)
{
    // Positions in a field with a mask count the mask's characters too.
    const QString text = field.inputMask().isEmpty() ? field.text() : field.displayText();
    if (field.hasSelectedText()) {
        return {text, {field.selectionStart(), field.selectionLength()}};
    }
    return {text, {field.cursorPosition(), 0}};
}
