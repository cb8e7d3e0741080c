// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <cups/cups.h>

// <cups/ppd.h> without its deprecation marks: a printer's own options and attributes are in its PPD
// alone. All it declares is marked by one macro, which is a plain public declaration meanwhile.
#pragma push_macro("_CUPS_DEPRECATED_1_6_MSG")
#undef _CUPS_DEPRECATED_1_6_MSG
#define _CUPS_DEPRECATED_1_6_MSG(message) _CUPS_PUBLIC // NOLINT(bugprone-reserved-identifier)
#include <cups/ppd.h>
#pragma pop_macro("_CUPS_DEPRECATED_1_6_MSG")
