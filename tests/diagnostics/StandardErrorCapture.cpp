// SPDX-License-Identifier: Apache-2.0
#include "StandardErrorCapture.h"

#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>

StandardErrorCapture::StandardErrorCapture()
    : mFile(memfd_create("stderr", MFD_CLOEXEC))
    , mFormer(dup(STDERR_FILENO))
{
    std::fflush(stderr);
    dup2(mFile, STDERR_FILENO);
}

StandardErrorCapture::~StandardErrorCapture()
{
    std::fflush(stderr);
    dup2(mFormer, STDERR_FILENO);
    close(mFormer);
    close(mFile);
}

QByteArray StandardErrorCapture::text() const
{
    struct stat file = {};
    fstat(mFile, &file);
    QByteArray bytes(int(file.st_size), Qt::Uninitialized);
    bytes.resize(int(pread(mFile, bytes.data(), std::size_t(bytes.size()), 0)));
    return bytes;
}
