// SPDX-License-Identifier: Apache-2.0
#include "FuzzTarget.h"

#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>
#include <map>

namespace {
std::map<QByteArray, FuzzTarget::Maker> &makers()
{
    static std::map<QByteArray, FuzzTarget::Maker> all;
    return all;
}
} // namespace

bool FuzzTarget::add(const char *name, Maker maker)
{
    return makers().emplace(name, maker).second;
}

std::unique_ptr<FuzzTarget> FuzzTarget::make(const QByteArray &name)
{
    const auto found = makers().find(name);
    return found == makers().end() ? nullptr : found->second();
}

QString FuzzTarget::folderTemplate()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           QStringLiteral("/kvfuzz-XXXXXX");
}

void expectRule(bool holds, const char *rule)
{
    if (!holds) {
        std::fprintf(stderr, "broken rule: %s\n", rule);
        std::abort();
    }
}
