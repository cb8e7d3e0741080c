// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "textinput/FormatArgument.h"

#include <QString>

#include <initializer_list>

/**
 * The format with its placeholders filled from the arguments.
 *
 * | placeholder | takes |
 * |---|---|
 * | %@ | anything, in words |
 * | %s | a C string |
 * | %d %i, %u %x %X %o | integers |
 * | %c %C | a character's code |
 * | %f %F %e %E %g %G %a %A | numbers |
 * | %p | the address of an object or a C string |
 * | %% | nothing: a percent sign |
 *
 * Flags, width, precision (both also as "*", and at most 65,536) and length modifiers are those of
 * printf(); "h" and "hh" narrow an integer, the other modifiers change nothing, for an integer has
 * the width of its own type. The precision counts characters of texts, bytes of C strings.
 *
 * An argument that does not suit its placeholder is put there in words; a placeholder without an
 * argument, and what is no placeholder, stays as it stands; further arguments are left out.
 * Numbers do not depend on the locale. A null format is the text "(null)".
 */
QString stringWithFormat(const QString &format, std::initializer_list<FormatArgument> arguments);
