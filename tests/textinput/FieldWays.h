// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "FieldUser.h"

#include <QList>
#include <QMetaType>

#include <functional>

/// What a user does with a field.
using FieldAction = std::function<void(FieldUser &user)>;
Q_DECLARE_METATYPE(FieldAction)

/// A way to get text into a field, at its caret or in the place of its selection.
struct FieldWay
{
    const char *name;
    void (*put)(FieldUser &user, const QString &text);

    /// Puts one letter in.
    FieldAction puttingX() const;
};

/// The ways that begin with an event or a menu.
const QList<FieldWay> &waysOfTheUser();
/// The slots of the field that put text in.
const QList<FieldWay> &waysOfTheProgram();

/// Pastes with the field's slot.
void pasteByProgram(FieldUser &user, const QString &text);
