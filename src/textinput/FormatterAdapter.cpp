// SPDX-License-Identifier: Apache-2.0
#include "textinput/FormatterAdapter.h"

#include "textinput/FieldEdits.h"
#include "textinput/PDEFormatter.h"
#include "textinput/ProposedEdit.h"

#include <QAction>
#include <QChildEvent>
#include <QClipboard>
#include <QCoreApplication>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>

#include <utility>

namespace {
FormatterAdapter *adapterOf(const QLineEdit *field)
{
    return field->findChild<FormatterAdapter *>(QString(), Qt::FindDirectChildrenOnly);
}

/// Whether the event is of a kind by which a user changes texts.
bool mayEdit(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::Drop:
    case QEvent::MouseButtonRelease:
        return true;
    default:
        return false;
    }
}

/// Whether the action pasted into the field; it no longer does.
bool takePasteFrom(QAction *action, QLineEdit *field)
{
    return QObject::disconnect(action, SIGNAL(triggered(bool)), field, SLOT(paste())) ||
           QObject::disconnect(action, &QAction::triggered, field, &QLineEdit::paste);
}
} // namespace

void FormatterAdapter::attach(PDEFormatter *formatter, QLineEdit *field)
{
    FormatterAdapter *adapter = adapterOf(field);
    if (!adapter && formatter) {
        adapter = new FormatterAdapter(field);
    }
    if (adapter) {
        adapter->mFormatter = formatter;
        adapter->standIn();
    }
}

PDEFormatter *FormatterAdapter::formatterOf(const QLineEdit *field)
{
    const FormatterAdapter *adapter = adapterOf(field);
    return adapter ? adapter->mFormatter.data() : nullptr;
}

FormatterAdapter::FormatterAdapter(QLineEdit *field)
    : QValidator(field)
    , mField(field)
{
    noteText();
    field->installEventFilter(this);
    connect(field, &QLineEdit::textChanged, this, &FormatterAdapter::noteText);
    connect(field, &QLineEdit::selectionChanged, this, &FormatterAdapter::noteSelection);
    connect(field, &QLineEdit::cursorPositionChanged, this, &FormatterAdapter::noteSelection);
}

/// Takes the place of the validator that the program has set, which goes on validating.
void FormatterAdapter::standIn()
{
    if (mField->validator() == this) {
        return;
    }
    mValidator = mField->validator();
    mField->setValidator(this);
    QString text = mField->text();
    int caret = mField->cursorPosition();
    const bool isMasked = !mField->inputMask().isEmpty();
    if (mValidator && !isMasked && mValidator->validate(text, caret) == Invalid) {
        vouchForText();
    }
}

/// Has a field that holds an invalid text take it for one that may stay: it would undo nothing
/// else.
void FormatterAdapter::vouchForText()
{
    const QSignalBlocker blocker(mField);
    const QString text = mField->text();
    const Selection selected = selection();
    mField->setText(QString());
    mField->setText(text);
    mField->setSelection(selected.anchor, selected.caret - selected.anchor);
}

bool FormatterAdapter::eventFilter(QObject *, QEvent *event)
{
    if (mayEdit(*event)) {
        standIn();
    }
    if (event->type() == QEvent::ChildPolished) {
        guardMenu(qobject_cast<QMenu *>(static_cast<QChildEvent *>(event)->child()));
    } else if (event->type() == QEvent::DragEnter) {
        mBeforeDrag = selection();
    }
    const auto edit = mFormatter ? ProposedEdit::of(*mField, *event) : std::nullopt;
    const QPointer<FormatterAdapter> self(this);
    if (!edit || isAllowed(*edit)) {
        return false;
    }
    dismiss(event);
    if (self) {
        leaveField(*event, edit->before);
    }
    return true;
}

/// Has the event go no further, and the source of a dropped text keep it.
void FormatterAdapter::dismiss(QEvent *event)
{
    event->accept();
    if (event->type() == QEvent::Drop) {
        static_cast<QDropEvent *>(event)->setDropAction(Qt::IgnoreAction);
        event->ignore();
    }
}

/// Ends what has led to a refused edit: a drag, or the composition of an input method.
void FormatterAdapter::leaveField(const QEvent &event, const FieldText &before)
{
    if (event.type() == QEvent::Drop && mField->text() == before.text) {
        mField->setSelection(mBeforeDrag.anchor, mBeforeDrag.caret - mBeforeDrag.anchor);
    } else if (event.type() == QEvent::InputMethod) {
        const auto &input = static_cast<const QInputMethodEvent &>(event);
        QInputMethodEvent withoutCommit(input.preeditString(), input.attributes());
        QCoreApplication::sendEvent(mField, &withoutCommit);
    }
}

/// Whether the edit may be made. If not, whoever was told of it may have destroyed the adapter.
bool FormatterAdapter::isAllowed(const ProposedEdit &edit)
{
    if (!isValid(edit)) {
        return false;
    }
    mAllowed = edit.after;
    return true;
}

bool FormatterAdapter::isValid(const ProposedEdit &edit) const
{
    return mFormatter->isPartialStringValid(edit.after.text, &edit.after.selection,
                                            edit.before.text, edit.before.selection, nullptr);
}

QValidator::State FormatterAdapter::validate(QString &text, int &caret) const
{
    const FieldText after{text, {caret, 0}};
    // The field also asks about the text that it has.
    const bool isNew = text != mBefore.text;
    const bool isFree = isNew && isUnchecked(after);
    if (isNew && !isFree && !mayBecome(after)) {
        return Invalid;
    }
    const State state = mValidator ? mValidator->validate(text, caret) : Acceptable;
    // What a field keeps although it is invalid must not be told to be: the field would keep any
    // edit from then on, refused ones too.
    const bool isKept = !isNew || isFree || mIsInvalid;
    if (state == Invalid && !isKept) {
        return Invalid;
    }
    mIsInvalid = state == Invalid;
    mBefore = {text, {caret, 0}};
    return mIsInvalid ? Intermediate : state;
}

/// Whether the text comes from the program or from the field's history.
bool FormatterAdapter::isUnchecked(const FieldText &after) const
{
    const bool isHistory = isUndoOrRedo(after);
    return isHistory || !mField->isUndoAvailable();
}

bool FormatterAdapter::mayBecome(const FieldText &after) const
{
    const bool wasAllowed = std::exchange(mAllowed, std::nullopt) == after;
    return !mFormatter || wasAllowed || isValid({mBefore, after});
}

/// Whether the edit is one of the field's history, which only an undo leaves something to redo.
bool FormatterAdapter::isUndoOrRedo(const FieldText &after) const
{
    if (mField->isRedoAvailable()) {
        mLatest = mLatest.value_or(mBefore.text);
        return true;
    }
    return std::exchange(mLatest, std::nullopt) == after.text;
}

void FormatterAdapter::fixup(QString &text) const
{
    if (mValidator) {
        mValidator->fixup(text);
    }
}

void FormatterAdapter::noteText()
{
    if (mField->validator() != this) {
        standIn();
        takeBackRefusedEdit();
    }
    mBefore = FieldText::of(*mField);
}

/// Does away with an edit that another validator has let pass, if the formatter refuses it.
void FormatterAdapter::takeBackRefusedEdit()
{
    const FieldText before = mBefore;
    const FieldText after = FieldText::of(*mField);
    if (!isUnchecked(after) && !mayBecome(after)) {
        FieldEdits::setText(mField, before.text);
        mField->setSelection(int(before.selection.location), int(before.selection.length));
    }
}

void FormatterAdapter::noteSelection()
{
    // In some edits the caret moves before the text is validated.
    const FieldText now = FieldText::of(*mField);
    if (now.text == mBefore.text) {
        mBefore = now;
    }
}

FormatterAdapter::Selection FormatterAdapter::selection() const
{
    const int caret = mField->cursorPosition();
    if (!mField->hasSelectedText()) {
        return {caret, caret};
    }
    const int start = mField->selectionStart();
    return {caret == start ? mField->selectionEnd() : start, caret};
}

/// Pastes for the actions of the field's menus, which the field does not hear of as events.
void FormatterAdapter::paste()
{
    standIn();
    const auto edit = mFormatter
                          ? ProposedEdit::insertion(*mField, QGuiApplication::clipboard()->text())
                          : std::nullopt;
    if (!edit || isAllowed(*edit)) {
        mField->paste();
    }
}

void FormatterAdapter::guardMenu(const QMenu *menu)
{
    const QList<QAction *> actions = menu ? menu->actions() : QList<QAction *>();
    for (QAction *action : actions) {
        if (takePasteFrom(action, mField)) {
            connect(action, &QAction::triggered, this, &FormatterAdapter::paste);
        }
    }
}

#include "moc_FormatterAdapter.cpp"
