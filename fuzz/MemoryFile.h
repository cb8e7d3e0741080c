// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>
#include <QString>

/// A file in memory that code can open by its name.
class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    /// Makes these bytes the file's whole content.
    void write(const QByteArray &bytes) const;
    /// The name, of this process alone.
    QString path() const;

private:
    int mDescriptor;
};
