// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <utility>

/// An object that tells of itself.
class Talker
{
public:
    explicit Talker(QString words)
        : mWords(std::move(words))
    {
    }
    QString description() const { return mWords; }

private:
    QString mWords;
};
