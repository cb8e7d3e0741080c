// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QChar>

/// The styles of text that a formatter accepts, by what the text may hold.
enum TextStyle : qint32 {
    AnyText = 0,
    ASCIIText = 1,
    IntegerText = 2,
    PlainText = 3,
    DecimalText = 4,
    /// Shown as a calendar date.
    DateText = 5,
    AlphanumericText = 6,
    AlphanumericSignsText = 7,
    NumericSignsText = 8,
    NumericSignsAndStopsText = 9,
    PrintableText = 10,
    PunctuatedText = 11,
};

/// What a style asks of a text.
struct StyleRules
{
    /// Classes of characters, as bits.
    enum Characters : quint8 {
        Digits = 1,
        Letters = 2,
        /// From space to tilde.
        Printable = 4,
        AllASCII = 8,
        Everything = 16,
    };

    quint8 classes;
    /// Characters besides those of the classes.
    const char *others;
    bool checksValue;
    /// Whether the text has room for one "." only.
    bool onePoint;

    /// Whether the style is about no characters at all.
    bool takesAnyText() const { return (classes & Everything) != 0; }

    /// Whether the style has the character.
    bool accepts(QChar character) const;

    /// The rules of a style; those of any ASCII text for a style that is none of TextStyle.
    static const StyleRules &of(qint32 style);
};
