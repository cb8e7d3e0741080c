// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QLineEdit>
#include <QPointer>

/// What a user sees of a text field: the text with the selection in brackets or the caret as "|",
/// then whether there is anything to undo and to redo.
QString seenOf(const QLineEdit &field);

/// A user at a text field in a window that is shown.
class FieldUser
{
public:
    /// Shows the field in the window; the window owns it.
    explicit FieldUser(QLineEdit *field = new QLineEdit);

    /// Null once it is destroyed.
    QLineEdit *field() const { return mField; }
    QWidget &window() { return mWindow; }
    QString seen() const { return seenOf(*mField); }

    /// Types characters, of which "\b" deletes backwards.
    void types(const QString &keys);
    /// Strikes one key that stands for the whole text.
    void strikes(const QString &text, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void presses(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void undoes();
    void redoes();
    void selects(int start, int length);

    /// Pastes with the keyboard.
    void pastes(const QString &text);
    /// Chooses an item of the field's menu, given by the standard name of its shortcut.
    void choosesFromMenu(QKeySequence::StandardKey item);
    void pastesFromMenu(const QString &text);

    /// Drags text over the field and lets it go in front of a character.
    /// @return what the field tells the text's source to do.
    Qt::DropAction drops(const QString &text, int position);

    /// Composes text with an input method, of which nothing is committed yet.
    void composes(const QString &text);
    /// Lets the input method commit text, in the place of a part near the caret.
    void commits(const QString &text, int replacementStart = 0, int replacementLength = 0);

private:
    void sendKey(int key, Qt::KeyboardModifiers modifiers, const QString &text);

    QWidget mWindow;
    QPointer<QLineEdit> mField;
};
