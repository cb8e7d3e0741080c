// SPDX-License-Identifier: Apache-2.0
#include "textinput/FieldEdits.h"

#include <QLineEdit>
#include <QPointer>

#include <utility>

FieldEdits *FieldEdits::of(QLineEdit *field)
{
    auto *edits = field->findChild<FieldEdits *>(QString(), Qt::FindDirectChildrenOnly);
    return edits ? edits : new FieldEdits(field);
}

FieldEdits::FieldEdits(QLineEdit *field)
    : QObject(field)
    , mText(field->text())
{
    connect(field, &QLineEdit::textChanged, this, &FieldEdits::noteText);
}

void FieldEdits::byProgram(QLineEdit *field, const std::function<void()> &change)
{
    const QPointer<FieldEdits> edits(of(field));
    edits->mIsByProgram = true;
    change();
    if (edits) {
        edits->mIsByProgram = false;
    }
}

void FieldEdits::setText(QLineEdit *field, const QString &text)
{
    if (field && field->text() != text) {
        byProgram(field, [field, &text] { field->setText(text); });
    }
}

void FieldEdits::noteText(const QString &text)
{
    const QString before = std::exchange(mText, text);
    // The program's change is told once; whoever hears of it may edit the field in turn.
    if (!std::exchange(mIsByProgram, false)) {
        Q_EMIT edited(before);
    }
}

#include "moc_FieldEdits.cpp"
