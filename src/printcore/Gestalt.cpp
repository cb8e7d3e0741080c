#include "printcore/Gestalt.h"

namespace {
std::optional<SystemVersion> &systemVersion()
{
    static std::optional<SystemVersion> version = SystemVersion{13, 0, 0};
    return version;
}

struct Selector
{
    quint32 code;
    qint32 SystemVersion::*number;
};

constexpr Selector kSelectors[] = {
    {gestaltSystemVersionMajor, &SystemVersion::major},
    {gestaltSystemVersionMinor, &SystemVersion::minor},
    {gestaltSystemVersionBugFix, &SystemVersion::bugFix},
};
} // namespace

OSStatus Gestalt(quint32 selector, qint32 *response)
{
    if (!response) {
        return kPMInvalidParameter;
    }
    const std::optional<SystemVersion> &version = systemVersion();
    if (!version) {
        return gestaltUndefSelectorErr;
    }
    for (const Selector &known : kSelectors) {
        if (known.code != selector) {
            continue;
        }
        *response = (*version).*known.number;
        return noErr;
    }
    return gestaltUndefSelectorErr;
}

void setSystemVersion(const std::optional<SystemVersion> &version)
{
    systemVersion() = version;
}
