// SPDX-License-Identifier: Apache-2.0
#include "diagnostics/MemoryCheck.h"

#include "diagnostics/DescriptorWriter.h"
#include "printcore/QtVersions.h"

#include <QByteArray>

#include <functional>

namespace {
constexpr qint64 kGroupSize = 16;
constexpr QtSize kDumpChunkSize = 65536;

/// What a dump looks like, and where it goes.
struct Dump
{
    const char *beforeGroup;
    const char *afterGroup;
    bool showsEmptyRest;
    std::function<void(const QByteArray &text)> write;
};

/// Prints each 16 bytes, then the rest.
void printDump(const Dump &dump, const char *bytes, qint64 count)
{
    QByteArray text;
    for (qint64 start = 0; start <= count; start += kGroupSize) {
        const qint64 size = qMin(kGroupSize, count - start);
        if (size > 0 || dump.showsEmptyRest) {
            text += dump.beforeGroup +
                    QByteArray::fromRawData(bytes + start, QtSize(size)).toHex() + dump.afterGroup;
        }
        if (text.size() >= kDumpChunkSize) {
            dump.write(text);
            text.clear();
        }
    }
    dump.write(text);
}

bool isAskedFor(qint32 level, const void *bytes, qint32 count)
{
    return level <= 0 && bytes && count > 0;
}
} // namespace

void memoryCheck(qint32 level, const void *bytes, qint32 count)
{
    if (isAskedFor(level, bytes, count)) {
        printDump({"DEBUG:", "", true, writeToStandardError}, static_cast<const char *>(bytes),
                  count);
    }
}

void memoryCheckFd(qint32 level, int descriptor, const void *bytes, qint32 count)
{
    if (isAskedFor(level, bytes, count)) {
        const auto write = [descriptor](const QByteArray &text) {
            writeToDescriptor(descriptor, text);
        };
        printDump({"", "\n", false, write}, static_cast<const char *>(bytes), count);
    }
}
