// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/TextRange.h"

#include <QString>

class QLineEdit;

/// What a line edit holds, and where its selection or caret is.
struct FieldText
{
    QString text;
    TextRange selection;

    bool operator==(const FieldText &) const = default;

    static FieldText of(const QLineEdit &field);
};
