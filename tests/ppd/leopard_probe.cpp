#include "plugin/KVMQRVOptionsPlugIn.h"
#include "printcore/Bundle.h"
#include "printcore/Gestalt.h"

#include <QByteArrayList>

#include <cstdio>

namespace {
/// A version such as "10.4.11"; nothing, which makes the query fail, for anything else.
std::optional<SystemVersion> versionFrom(const char *argument)
{
    const QByteArrayList numbers = QByteArray(argument).split('.');
    if (numbers.size() != 3) {
        return std::nullopt;
    }
    return SystemVersion{numbers[0].toInt(), numbers[1].toInt(), numbers[2].toInt()};
}

const char *asked()
{
    return KVMQRVOptionsPlugIn13_v400_::runningOnLeopardOrLater() ? "yes" : "no";
}
} // namespace

/// leopard_probe VERSION LATER: prints what the plug-in says of the first version, what it says
/// once the version has become the other, and whether it then agrees to be used.
int main(int argc, char *argv[])
{
    if (argc != 3) {
        return 2;
    }
    setSystemVersion(versionFrom(argv[1]));
    std::printf("%s", asked());
    setSystemVersion(versionFrom(argv[2]));
    std::printf(" %s", asked());
    KVMQRVOptionsPlugIn13_v400_ plugIn;
    std::printf(" %s\n", plugIn.initWithBundle(nullptr) ? "loads" : "declines");
    return 0;
}
