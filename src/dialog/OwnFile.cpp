// SPDX-License-Identifier: Apache-2.0
#include "dialog/OwnFile.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

QString ownFile()
{
    static const char anythingOfOurs = 0;
    Dl_info info = {};
    dladdr(&anythingOfOurs, &info);
    return QFile::decodeName(info.dli_fname);
}

QString ownFolder()
{
    const QString file = QFileInfo(ownFile()).canonicalFilePath();
    return file.isEmpty() ? QString() : QFileInfo(file).path();
}
