// SPDX-License-Identifier: Apache-2.0
#include "FieldUser.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QTest>

QString seenOf(const QLineEdit &field)
{
    QString text = field.text();
    if (field.hasSelectedText()) {
        const bool caretIsFirst = field.cursorPosition() == field.selectionStart();
        text.insert(field.selectionEnd(), caretIsFirst ? u"]"_s : u"|]"_s);
        text.insert(field.selectionStart(), caretIsFirst ? u"[|"_s : u"["_s);
    } else {
        text.insert(field.cursorPosition(), u'|');
    }
    return text + (field.isUndoAvailable() ? u" undo"_s : QString()) +
           (field.isRedoAvailable() ? u" redo"_s : QString());
}

FieldUser::FieldUser(QLineEdit *field)
    : mField(field)
{
    mField->setParent(&mWindow);
    mField->setGeometry(10, 10, 380, 30);
    mWindow.resize(400, 50);
    mWindow.show();
    mWindow.activateWindow();
    if (!QTest::qWaitForWindowActive(&mWindow)) {
        qFatal("The window does not become active.");
    }
    mField->setFocus();
}

void FieldUser::sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        if (mField) {
            QKeyEvent event(type, key, modifiers, text);
            QApplication::sendEvent(mField, &event);
        }
    }
}

void FieldUser::types(const QString &keys)
{
    for (const QChar key : keys) {
        sendKey(key == u'\b' ? int(Qt::Key_Backspace) : 0, Qt::NoModifier, key);
    }
}

void FieldUser::strikes(const QString &text, Qt::KeyboardModifiers modifiers)
{
    sendKey(0, modifiers, text);
}

void FieldUser::presses(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    sendKey(key, modifiers, {});
}

void FieldUser::undoes()
{
    presses(Qt::Key_Z, Qt::ControlModifier);
}

void FieldUser::redoes()
{
    presses(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
}

void FieldUser::selects(int start, int length)
{
    mField->setSelection(start, length);
}

void FieldUser::pastes(const QString &text)
{
    QApplication::clipboard()->setText(text);
    presses(Qt::Key_V, Qt::ControlModifier);
}

void FieldUser::choosesFromMenu(QKeySequence::StandardKey item)
{
    const QPoint place(5, 5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, mField->mapToGlobal(place));
    QApplication::sendEvent(mField, &event);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    QVERIFY2(menu, "The field shows no menu.");
    const QString shortcut = QKeySequence(QKeySequence::keyBindings(item).constFirst())
                                 .toString(QKeySequence::NativeText);
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (action->text().endsWith(u'\t' + shortcut)) {
            menu->hide();
            action->trigger();
            return;
        }
    }
    QFAIL("The menu lacks the item.");
}

void FieldUser::pastesFromMenu(const QString &text)
{
    QApplication::clipboard()->setText(text);
    choosesFromMenu(QKeySequence::Paste);
}

Qt::DropAction FieldUser::drops(const QString &text, int position)
{
    int x = 0;
    while (mField->cursorPositionAt({x, 15}) < position) {
        ++x;
    }
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter({0, 15}, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(mField, &enter);
    const QPoint place(x, 15);
    QDropEvent drop(place, Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(mField, &drop);
    return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
}

void FieldUser::composes(const QString &text)
{
    QInputMethodEvent event(text, {});
    QApplication::sendEvent(mField, &event);
}

void FieldUser::commits(const QString &text, int replacementStart, int replacementLength)
{
    QInputMethodEvent event;
    event.setCommitString(text, replacementStart, replacementLength);
    QApplication::sendEvent(mField, &event);
}
