// SPDX-License-Identifier: Apache-2.0
#include "kvprint/LpCommand.h"

#include <QRegularExpression>

namespace {
/// A word as a shell takes it.
QString quoted(const QString &word)
{
    static const QRegularExpression plain(QStringLiteral(R"(\A[A-Za-z0-9_@%+=:,./-]+\z)"));
    if (plain.match(word).hasMatch()) {
        return word;
    }
    QString inQuotes = word;
    inQuotes.replace(QLatin1Char('\''), QLatin1String("'\\''"));
    return QLatin1Char('\'') + inQuotes + QLatin1Char('\'');
}

/// A file's name that lp does not take for an option or for standard input.
QString asFile(const QString &name)
{
    return name.startsWith(QLatin1Char('-')) ? QStringLiteral("./") + name : name;
}

/// A name as libcups reads it behind "-o", where a brace in front is one around all options.
QString shielded(const QString &name)
{
    return name.startsWith(QLatin1Char('{')) ? QLatin1Char(' ') + name : name;
}

/// A value as libcups reads it behind "-o", where spaces end it.
QString escaped(QString value)
{
    static const QRegularExpression special(QStringLiteral(R"(([\s\\'"{}]))"));
    return value.replace(special, QStringLiteral(R"(\\1)"));
}
} // namespace

QString lpCommand(const QString &queue, int copies, const JobOptions &options,
                  const QStringList &files)
{
    QStringList words{QStringLiteral("lp")};
    if (!queue.isNull()) {
        words << QStringLiteral("-d") << quoted(queue);
    }
    if (copies > 0) {
        words << QStringLiteral("-n") << QString::number(copies);
    }
    for (const auto &[key, value] : options.pairs()) {
        words << QStringLiteral("-o") << quoted(shielded(key) + QLatin1Char('=') + escaped(value));
    }
    words << QStringLiteral("--");
    for (const QString &file : files) {
        words << quoted(asFile(file));
    }
    return words.join(QLatin1Char(' '));
}
