// SPDX-License-Identifier: Apache-2.0
#include "printcore/Gestalt.h"

OSStatus Gestalt(quint32 selector, qint32 *response)
{
    if (!response) {
        return kPMInvalidParameter;
    }
    switch (selector) {
    case gestaltSystemVersionMajor:
        *response = 13;
        return noErr;
    case gestaltSystemVersionMinor:
    case gestaltSystemVersionBugFix:
        *response = 0;
        return noErr;
    default:
        return gestaltUndefSelectorErr;
    }
}
