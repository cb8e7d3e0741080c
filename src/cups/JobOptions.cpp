// SPDX-License-Identifier: Apache-2.0
#include "cups/JobOptions.h"

#include "printcore/QtVersions.h"

void JobOptions::parse(const QString &argument)
{
    cups_option_t *options = nullptr;
    const int count = cupsParseOptions(argument.toUtf8().constData(), 0, &options);
    for (int i = 0; i < count; ++i) {
        set(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
    }
    cupsFreeOptions(count, options);
}

void JobOptions::set(const QString &key, const QString &value)
{
    for (Pair &pair : mPairs) {
        if (pair.first == key) {
            pair.second = value;
            return;
        }
    }
    mPairs.append({key, value});
}

void JobOptions::merge(const JobOptions &other)
{
    for (const Pair &pair : other.pairs()) {
        set(pair.first, pair.second);
    }
}

void JobOptions::remove(const QString &key)
{
    removeFrom(mPairs, [&key](const Pair &pair) { return pair.first == key; });
}

QString JobOptions::value(const QString &key) const
{
    for (const Pair &pair : mPairs) {
        if (pair.first == key) {
            return pair.second;
        }
    }
    return {};
}

CupsOptions::CupsOptions(const JobOptions &options)
{
    for (const auto &[key, value] : options.pairs()) {
        mCount =
            cupsAddOption(key.toUtf8().constData(), value.toUtf8().constData(), mCount, &mOptions);
    }
}

CupsOptions::~CupsOptions()
{
    cupsFreeOptions(mCount, mOptions);
}
