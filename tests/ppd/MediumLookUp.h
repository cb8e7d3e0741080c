// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/TapeInfo.h"
#include "support/TestHost.h"

/// The private ticket's entries.
inline const QString paperKey = QStringLiteral("MqPaperName2");
inline const QString colorKey = QStringLiteral("MqRVMultiColor");

/// A record of which every field must be overwritten.
inline TapeInfo garbage()
{
    return {-1.0, 77, QStringLiteral("garbage"), 77};
}

/// What GetTapeInfo() answers for the job, and the record that it fills in.
inline OSStatus lookUp(TestHost &host, TapeInfo *info)
{
    *info = garbage();
    return GetTapeInfo(host.printSession(), host.printSettings(), host.pageFormat(), host.ppdFile(),
                       info);
}

/// The medium of the job; a record of its own with the status when the lookup fails.
inline TapeInfo infoOf(TestHost &host)
{
    TapeInfo info;
    const OSStatus status = lookUp(host, &info);
    return status == noErr ? info : TapeInfo{0.0, -1, QStringLiteral("failed"), status};
}
