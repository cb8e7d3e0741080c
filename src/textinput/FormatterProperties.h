// SPDX-License-Identifier: Apache-2.0
#pragma once

class QByteArray;
class QLineEdit;

/**
 * Formatters that a form asks for, by dynamic properties of a text field.
 *
 * | property | sets | without it |
 * |---|---|---|
 * | formatterStyle | the style, see TextStyle | 0 |
 * | formatterMaxLength | the most bytes of the text in the system encoding | 0: any number |
 * | formatterMinValue | the smallest value, and has it checked | not checked |
 * | formatterMaxValue | the largest value, and has it checked | not checked |
 *
 * Each is an integer of 32 bits, as a number or in digits. It is a setting of the formatter that
 * checks the field, whoever has attached that; where none does, the field gets one that it owns.
 */
namespace FormatterProperties {
/// Does as the property of that name now says, if it is one of the above. Of a value that is no
/// integer the form's author is warned; it changes nothing.
void apply(QLineEdit *field, const QByteArray &name);
} // namespace FormatterProperties
