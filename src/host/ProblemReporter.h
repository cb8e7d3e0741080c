// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QSet>
#include <QString>

#include <functional>

/// Tells the user what is wrong with a bundle, a PPD or a choice: each problem once.
class ProblemReporter
{
public:
    using Handler = std::function<void(const QString &problem)>;

    /// Writes problems to standard error, each as one line, and to the system log when that is no
    /// terminal.
    ProblemReporter();
    /// Hands problems to the handler instead.
    explicit ProblemReporter(Handler handler);

    /// Tells the problem, unless it has been told before. Null and empty ones are not told.
    void report(const QString &problem);

private:
    Handler mHandler;
    QSet<QString> mTold;
};
