// SPDX-License-Identifier: Apache-2.0
#include "host/HostText.h"

#include <QFile>

/// Q_INIT_RESOURCE works in no namespace. Without it a static library leaves its resources out.
static void keepTables()
{
    Q_INIT_RESOURCE(hosttexts);
}

HostText::HostText()
{
    keepTables();
    mTables.load(
        [](const QString &fileName) {
            QFile table(QStringLiteral(":/kvprint/host/") + fileName);
            return table.open(QIODevice::ReadOnly) ? table.readAll() : QByteArray();
        },
        StringTables::usersLanguages());
}

QString HostText::text(const char *english) const
{
    const QString key = QString::fromLatin1(english);
    const QString text = mTables.text(QStringLiteral("Host"), key);
    return text.isNull() ? key : text;
}
