#include "dialog/OwnFile.h"

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

QString ownFolder()
{
    static const char anythingOfOurs = 0;
    Dl_info info = {};
    dladdr(&anythingOfOurs, &info);
    const QFileInfo library(QFile::decodeName(info.dli_fname));
    return QFileInfo(library.canonicalFilePath()).path();
}
