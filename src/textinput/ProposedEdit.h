// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/FieldText.h"

#include <optional>

class QEvent;

/// An edit that a line edit is about to make.
struct ProposedEdit
{
    FieldText before;
    FieldText after;

    /**
     * The edit that puts the text in the place of the field's selection.
     *
     * @return nothing when the field takes no text, or has a mask that decides what becomes of it.
     */
    static std::optional<ProposedEdit> insertion(const QLineEdit &field, const QString &text);

    /// The edit with which the field will answer the event; nothing when it will put no text in.
    static std::optional<ProposedEdit> of(QLineEdit &field, const QEvent &event);
};
