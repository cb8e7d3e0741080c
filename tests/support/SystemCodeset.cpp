// SPDX-License-Identifier: Apache-2.0
#include "support/SystemCodeset.h"

#include <dlfcn.h>
#include <langinfo.h>

namespace {
QByteArray &codeset()
{
    static QByteArray name;
    return name;
}
} // namespace

void setSystemCodeset(const QByteArray &name)
{
    codeset() = name;
}

/// Takes the place of the C library's in this program: a machine need not have a locale with the
/// codeset that a test wants.
extern "C" __attribute__((visibility("default"))) char *nl_langinfo(nl_item item) noexcept
{
    if (item == CODESET && !codeset().isEmpty()) {
        return codeset().data();
    }
    static const auto next = reinterpret_cast<char *(*)(nl_item)>(dlsym(RTLD_NEXT, "nl_langinfo"));
    return next(item);
}
