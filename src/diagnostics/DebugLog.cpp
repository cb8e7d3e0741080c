// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/DebugLog.h"

#include "diagnostics/DescriptorWriter.h"

void writeDebugLog(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    writeToStandardError("DEBUG: " + QByteArray(bytes.constData()) + '\n');
}

void writeDebugLogFd(int descriptor, const QString &text)
{
    writeToDescriptor(descriptor, text.toUtf8() + '\n');
}
