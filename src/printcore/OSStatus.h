// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QtGlobal>

/// Result of a printing-core call: 0 for success, a negative number for a failure.
using OSStatus = qint32;

// The numbers are those that the printing layer has always used, so that a status that is
// logged or passed on keeps its established meaning.

/// Success.
constexpr OSStatus noErr = 0;
/// A required argument is null.
constexpr OSStatus kPMInvalidParameter = -50;
/// `Gestalt` does not know the selector, or the version is unknown.
constexpr OSStatus gestaltUndefSelectorErr = -5551;
/// The print settings are null.
constexpr OSStatus kPMInvalidPrintSettings = -30875;
/// The page format is null.
constexpr OSStatus kPMInvalidPageFormat = -30876;
/// A value is outside the range that the call takes.
constexpr OSStatus kPMValueOutOfRange = -30877;
/// The value was stored, but the request to lock it was ignored.
constexpr OSStatus kPMLockIgnored = -30878;
/// The print session is null.
constexpr OSStatus kPMInvalidPrintSession = -30879;
/// The printer is null.
constexpr OSStatus kPMInvalidPrinter = -30880;
/// There is no entry under the key.
constexpr OSStatus kPMInvalidKey = -30888;
/// The entry under the key has another type than the one asked for.
constexpr OSStatus kPMInvalidValue = -30889;
/// A session has no value under the key of a ticket.
constexpr OSStatus kPMInvalidTicket = -30891;
/// The paper is null, or its height is no finite number of 0 or more.
constexpr OSStatus kPMInvalidPaper = -30897;
