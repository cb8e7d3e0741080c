// SPDX-License-Identifier: Apache-2.0
#include "cutoption/KVMQRVOptionsPlugIn.h"

#include "cutoption/OptionPDE.h"
#include "printcore/Gestalt.h"

namespace {
bool queryRunningOnLeopardOrLater()
{
    qint32 major = 10;
    qint32 minor = 4;
    qint32 bugFix = 0;
    Gestalt(gestaltSystemVersionMajor, &major);
    Gestalt(gestaltSystemVersionMinor, &minor);
    Gestalt(gestaltSystemVersionBugFix, &bugFix);
    return major >= 11 || (major == 10 && minor > 4);
}
} // namespace

bool KVMQRVOptionsPlugIn13_v400_::runningOnLeopardOrLater()
{
    static const bool answer = queryRunningOnLeopardOrLater();
    return answer;
}

bool KVMQRVOptionsPlugIn13_v400_::initWithBundle(const std::shared_ptr<Bundle> &bundle)
{
    if (!runningOnLeopardOrLater()) {
        return false;
    }
    pluginBundle = bundle;
    return true;
}

std::shared_ptr<PDEPanelList> KVMQRVOptionsPlugIn13_v400_::PDEPanelsForType(
    const QString &type, const std::shared_ptr<PDEPluginCallback13_v400_> &hostInfo)
{
    pdes = std::make_shared<PDEPanelList>();
    if (type == kPrinterModuleDialogType) {
        if (auto panel = OptionPDE13_v400_::initWithCallback(hostInfo, pluginBundle.lock())) {
            pdes->push_back(std::move(panel));
        }
        if (pdes->empty()) {
            pdes.reset();
        }
    }
    return pdes;
}
