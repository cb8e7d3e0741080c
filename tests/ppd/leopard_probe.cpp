// SPDX-License-Identifier: Apache-2.0
#include "cutoption/KVMQRVOptionsPlugIn.h"
#include "printcore/Bundle.h"
#include "printcore/Gestalt.h"

#include <QByteArrayList>

#include <cstdio>

namespace {
/// Major, minor and bug-fix number of the system; what is no number cannot be had.
QByteArrayList version;

const char *asked()
{
    return KVMQRVOptionsPlugIn13_v400_::runningOnLeopardOrLater() ? "yes" : "no";
}
} // namespace

/// Stands for the printing core's, which the plug-in would call.
OSStatus Gestalt(quint32 selector, qint32 *response)
{
    bool isNumber = false;
    const int number = version.value(int(selector - gestaltSystemVersionMajor)).toInt(&isNumber);
    if (isNumber) {
        *response = number;
    }
    return isNumber ? noErr : gestaltUndefSelectorErr;
}

/// leopard_probe VERSION LATER: prints what the plug-in says of the first version, what it says
/// once the version has become the other, and whether it then agrees to be used. In place of a
/// version's number "?" stands for one that cannot be had.
int main(int argc, char *argv[])
{
    if (argc != 3) {
        return 2;
    }
    version = QByteArray(argv[1]).split('.');
    std::printf("%s", asked());
    version = QByteArray(argv[2]).split('.');
    std::printf(" %s", asked());
    KVMQRVOptionsPlugIn13_v400_ plugIn;
    std::printf(" %s\n", plugIn.initWithBundle(nullptr) ? "loads" : "declines");
    return 0;
}
