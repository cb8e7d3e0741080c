// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "printcore/Export.h"
#include "printcore/OSStatus.h"

/// Selectors of Gestalt(): four characters each, 'sys1', 'sys2' and 'sys3'.
constexpr quint32 gestaltSystemVersionMajor = 0x73797331;
constexpr quint32 gestaltSystemVersionMinor = 0x73797332;
constexpr quint32 gestaltSystemVersionBugFix = 0x73797333;

/**
 * Answers one number of the version of the dialog-extension interface that this printing core
 * implements. The kernel's version plays no part.
 *
 * @return gestaltUndefSelectorErr, with the response left alone, for another selector;
 *         kPMInvalidParameter for a null response.
 */
KVPRINTCORE_EXPORT OSStatus Gestalt(quint32 selector, qint32 *response);
