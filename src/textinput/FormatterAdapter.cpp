#include "textinput/FormatterAdapter.h"

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
    , mValidator(field->validator())
{
    noteText();
    field->installEventFilter(this);
    field->setValidator(this);
    connect(field, &QLineEdit::textChanged, this, &FormatterAdapter::noteText);
    connect(field, &QLineEdit::selectionChanged, this, &FormatterAdapter::noteSelection);
    connect(field, &QLineEdit::cursorPositionChanged, this, &FormatterAdapter::noteSelection);
}

bool FormatterAdapter::eventFilter(QObject *, QEvent *event)
{
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
    if (mFormatter && text != mBefore.text && !mayBecome(after)) {
        return Invalid;
    }
    const State state = mValidator ? mValidator->validate(text, caret) : Acceptable;
    if (state != Invalid) {
        mBefore = {text, {caret, 0}};
    }
    return state;
}

bool FormatterAdapter::mayBecome(const FieldText &after) const
{
    const bool isHistory = isUndoOrRedo(after);
    const bool isSetByProgram = !mField->isUndoAvailable();
    const bool wasAllowed = std::exchange(mAllowed, std::nullopt) == after;
    return isHistory || isSetByProgram || wasAllowed || isValid({mBefore, after});
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
    mBefore = FieldText::of(*mField);
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
