#pragma once

#include "printcore/Export.h"
#include "printcore/OSStatus.h"

#include <optional>

/// Selectors of Gestalt(): four characters each, 'sys1', 'sys2' and 'sys3'.
constexpr quint32 gestaltSystemVersionMajor = 0x73797331;
constexpr quint32 gestaltSystemVersionMinor = 0x73797332;
constexpr quint32 gestaltSystemVersionBugFix = 0x73797333;

/**
 * Answers one number of the version of the dialog-extension interface that this printing core
 * implements. The kernel's version plays no part.
 *
 * @return gestaltUndefSelectorErr, with the response left alone, for another selector or when the
 *         version is not known; kPMInvalidParameter for a null response.
 */
KVPRINTCORE_EXPORT OSStatus Gestalt(quint32 selector, qint32 *response);

/// The version that Gestalt() answers.
struct SystemVersion
{
    qint32 major;
    qint32 minor;
    qint32 bugFix;
};

/// Makes Gestalt() answer another version, or fail for every selector when given nothing.
KVPRINTCORE_EXPORT void setSystemVersion(const std::optional<SystemVersion> &version);
