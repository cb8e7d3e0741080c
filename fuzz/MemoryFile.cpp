// SPDX-License-Identifier: Apache-2.0
#include "MemoryFile.h"

#include "FuzzTarget.h"

#include <sys/mman.h>
#include <unistd.h>

MemoryFile::MemoryFile()
    : mDescriptor(memfd_create("fuzz", MFD_CLOEXEC))
{
    expectRule(mDescriptor >= 0, "a file in memory can be made");
}

MemoryFile::~MemoryFile()
{
    close(mDescriptor);
}

void MemoryFile::write(const QByteArray &bytes) const
{
    const bool isWritten =
        ftruncate(mDescriptor, 0) == 0 &&
        pwrite(mDescriptor, bytes.constData(), size_t(bytes.size()), 0) == bytes.size();
    expectRule(isWritten, "a file in memory can be written");
}

QString MemoryFile::path() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(mDescriptor);
}
