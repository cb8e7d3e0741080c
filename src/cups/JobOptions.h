// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>

#include <cups/cups.h>

#include <utility>

/// The options of a job: keywords with values, each keyword once, in the order of their first use.
class JobOptions
{
public:
    using Pair = std::pair<QString, QString>;

    /// The most copies of a job, CUPS' own limit unless MaxCopies of cupsd.conf says otherwise.
    static constexpr int mostCopies = 9999;

    /// Adds what one "-o" argument says: "KEY=VALUE KEY2=VALUE2 FLAG noFLAG".
    void parse(const QString &argument);
    /// Sets the value of a keyword.
    void set(const QString &key, const QString &value);
    /// Sets every option of the other.
    void merge(const JobOptions &other);
    void remove(const QString &key);

    /// The value of the keyword; null when it is not set.
    QString value(const QString &key) const;
    bool contains(const QString &key) const { return !value(key).isNull(); }
    const QList<Pair> &pairs() const { return mPairs; }

private:
    QList<Pair> mPairs;
};

/// Job options as libcups takes them; the strings are copies.
class CupsOptions
{
public:
    explicit CupsOptions(const JobOptions &options);
    ~CupsOptions();
    CupsOptions(const CupsOptions &) = delete;
    CupsOptions &operator=(const CupsOptions &) = delete;

    int count() const { return mCount; }
    /// Owned by this object.
    cups_option_t *data() const { return mOptions; }

private:
    int mCount = 0;
    cups_option_t *mOptions = nullptr;
};
