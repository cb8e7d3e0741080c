// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/FieldText.h"

#include <QPointer>
#include <QValidator>

#include <optional>

class PDEFormatter;
class QLineEdit;
class QMenu;
struct ProposedEdit;

/**
 * Has a formatter check what the user writes into a line edit, before it is written.
 *
 * A refused edit leaves text, selection, caret, undo and redo as they were. It is checked with the
 * text and the selection before it, and the text and the caret after it: for typed text, pasted
 * text (over a selection or not), text that an input method commits, and dropped text, for which
 * the selection before is the place where it is dropped. Undo and redo are never refused, nor is
 * anything that the program sets.
 *
 * What gets to the line edit in another way (its slots paste() and insert() called by the program,
 * a click of the middle button, events that a spin box hands on) is checked by the field's
 * validator, which the adapter is: a refused edit of that kind costs what could be redone, and
 * right after the program has set a validator what could be undone, too. An observer that is told
 * of it must not destroy the field.
 */
class FormatterAdapter : public QValidator
{
    Q_OBJECT

public:
    /**
     * Lets the formatter check the field's edits from now on, in the place of any former one.
     *
     * A validator that the field has, or that the program sets later, goes on validating. The field
     * does not own the formatter, and takes any text once that is destroyed. What can be undone is
     * lost when the text is one that the validator does not allow.
     *
     * @param formatter may check several fields; null for none.
     */
    static void attach(PDEFormatter *formatter, QLineEdit *field);

    /// The formatter that checks the field's edits; null when none does.
    static PDEFormatter *formatterOf(const QLineEdit *field);

    bool eventFilter(QObject *watched, QEvent *event) override;
    State validate(QString &text, int &caret) const override;
    void fixup(QString &text) const override;

private:
    /// The end of a selection that stays, and the one that the user moves.
    struct Selection
    {
        int anchor = 0;
        int caret = 0;
    };

    explicit FormatterAdapter(QLineEdit *field);

    static void dismiss(QEvent *event);
    void standIn();
    void vouchForText();
    void takeBackRefusedEdit();
    void leaveField(const QEvent &event, const FieldText &before);
    bool isAllowed(const ProposedEdit &edit);
    bool isValid(const ProposedEdit &edit) const;
    bool isUnchecked(const FieldText &after) const;
    bool mayBecome(const FieldText &after) const;
    bool isUndoOrRedo(const FieldText &after) const;
    void noteText();
    void noteSelection();
    Selection selection() const;
    void paste();
    void guardMenu(const QMenu *menu);

    QLineEdit *mField;
    QPointer<PDEFormatter> mFormatter;
    QPointer<const QValidator> mValidator;
    /// The selection when a drag came over the field, for the drag takes it away.
    Selection mBeforeDrag;
    /// Whether the validator does not allow what the field holds.
    mutable bool mIsInvalid = false;
    /// What the field held before the edit that is being made, if any.
    mutable FieldText mBefore;
    /// What comes of an edit that is allowed and about to be made.
    mutable std::optional<FieldText> mAllowed;
    /// The text to which redo leads, if there is any.
    mutable std::optional<QString> mLatest;
};
