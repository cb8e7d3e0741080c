// SPDX-License-Identifier: Apache-2.0
#include "textinput/ProposedEdit.h"

#include "printcore/QtVersions.h"
#include "toolkit/QtWidgetVersions.h"

#include <QClipboard>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>

#include <algorithm>

namespace {
bool takesText(const QLineEdit &field)
{
    return !field.isReadOnly() && field.isEnabled() && field.inputMask().isEmpty();
}

/// The field's text with another one in the place of a part of it, as far as the field has room.
FieldText replaced(const QLineEdit &field, const FieldText &before, const TextRange &part,
                   const QString &text)
{
    const QtSize room = field.maxLength() - (before.text.size() - part.length);
    const QString inserted = text.left(std::max<QtSize>(room, 0));
    FieldText after = before;
    after.text.replace(part.location, part.length, inserted);
    after.selection = {part.location + inserted.size(), 0};
    return after;
}

/// Whether a line edit takes the text of a key.
bool isWritten(const QString &text)
{
    if (text.isEmpty() || text.front().isHighSurrogate()) {
        return text.size() > 1;
    }
    const QChar character = text.front();
    return character.isPrint() || character.category() == QChar::Other_Format ||
           character.category() == QChar::Other_PrivateUse;
}

std::optional<ProposedEdit> editOfKey(const QLineEdit &field, const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Paste)) {
        return ProposedEdit::insertion(field, QGuiApplication::clipboard()->text());
    }
    const Qt::KeyboardModifiers typing =
        Qt::ShiftModifier | Qt::KeypadModifier | Qt::GroupSwitchModifier;
    if ((event.modifiers() & ~typing) != Qt::NoModifier || !isWritten(event.text())) {
        return std::nullopt;
    }
    return ProposedEdit::insertion(field, event.text());
}

/// The commit of an input method: in the place of the selection, and of a part near the caret.
std::optional<ProposedEdit> editOfInputMethod(const QLineEdit &field,
                                              const QInputMethodEvent &event)
{
    if (event.commitString().isEmpty()) {
        return std::nullopt;
    }
    auto edit = ProposedEdit::insertion(field, {});
    if (!edit) {
        return std::nullopt;
    }
    const FieldText collapsed = edit->after;
    const QtSize size = collapsed.text.size();
    const QtSize start =
        std::clamp<QtSize>(collapsed.selection.location + event.replacementStart(), 0, size);
    // A part that goes beyond the text is not replaced at all.
    const QtSize wanted = event.replacementLength();
    const QtSize length = wanted > 0 && start + wanted <= size ? wanted : 0;
    edit->after = replaced(field, collapsed, {start, length}, event.commitString());
    return edit;
}

/// The text that is dropped goes where the pointer is.
std::optional<ProposedEdit> editOfDrop(QLineEdit &field, const QDropEvent &event)
{
    auto edit = ProposedEdit::insertion(field, {});
    const QString text = event.mimeData()->text();
    if (!edit || text.isEmpty()) {
        return std::nullopt;
    }
    edit->before.selection = {field.cursorPositionAt(positionOf(event).toPoint()), 0};
    edit->after = replaced(field, edit->before, edit->before.selection, text);
    return edit;
}
} // namespace

std::optional<ProposedEdit> ProposedEdit::insertion(const QLineEdit &field, const QString &text)
{
    if (!takesText(field)) {
        return std::nullopt;
    }
    const FieldText before = FieldText::of(field);
    return ProposedEdit{before, replaced(field, before, before.selection, text)};
}

std::optional<ProposedEdit> ProposedEdit::of(QLineEdit &field, const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
        return editOfKey(field, static_cast<const QKeyEvent &>(event));
    case QEvent::InputMethod:
        return editOfInputMethod(field, static_cast<const QInputMethodEvent &>(event));
    case QEvent::Drop:
        return editOfDrop(field, static_cast<const QDropEvent &>(event));
    default:
        return std::nullopt;
    }
}
