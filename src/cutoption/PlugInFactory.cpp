// SPDX-License-Identifier: Apache-2.0
#include "cutoption/PlugInFactory.h"

#include "cutoption/KVMQRVOptionsPlugIn.h"

std::unique_ptr<PDEPlugIn> PlugInFactory::makePlugIn(const QString &principalClass) const
{
    if (principalClass != QLatin1String("KVMQRVOptionsPlugIn13_v400_")) {
        return nullptr;
    }
    return std::make_unique<KVMQRVOptionsPlugIn13_v400_>();
}
