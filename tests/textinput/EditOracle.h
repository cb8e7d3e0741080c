// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/TextRange.h"

#include <QString>
#include <QStringList>

#include <optional>

/// One edit, and the formatter that checks it.
struct CheckedEdit
{
    qint32 style = 0;
    qint32 maxLength = 0;
    std::optional<qint32> maxValue = {};
    std::optional<qint32> minValue = {};
    QStringList refusedStrings = {};

    QString proposedText;
    std::optional<TextRange> proposedSelection = {};
    QString originalText;
    TextRange originalSelection = {};
};

/// What comes of an edit: nothing, or a notification's name and the character that it is about.
struct Verdict
{
    QString notification = {};
    QString character = {};

    bool isAccepted() const { return notification.isNull(); }
    bool operator==(const Verdict &) const = default;
};

/// Works the rules off as they are told, step by step for each character, without the formatter.
Verdict verdictOn(const CheckedEdit &edit);

/// Whether the style's rule lets the character pass, were it typed alone.
bool isOfStyle(qint32 style, QChar character);
