// SPDX-License-Identifier: Apache-2.0
#include "printcore/PrintSession.h"

QVariant PrintSession::value(const QString &key) const
{
    return mValues.value(key);
}

void PrintSession::setValue(const QString &key, const QVariant &value)
{
    if (value.isValid()) {
        mValues.insert(key, value);
    } else {
        mValues.remove(key);
    }
}
