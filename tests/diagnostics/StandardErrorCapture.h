// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QByteArray>

/// Standard error of the process, kept from the terminal for as long as it lives.
class StandardErrorCapture
{
public:
    StandardErrorCapture();
    ~StandardErrorCapture();
    StandardErrorCapture(const StandardErrorCapture &) = delete;
    StandardErrorCapture &operator=(const StandardErrorCapture &) = delete;

    /// All that has been written to it.
    QByteArray text() const;

private:
    int mFile;
    int mFormer;
};
