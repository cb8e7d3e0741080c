// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QVariant>

/// Which kind of integer a variant holds.
enum class IntegerKind {
    None,
    Signed,
    Unsigned,
};

/// The kind of integer that the variant holds; a truth value and a character are none.
inline IntegerKind integerKind(const QVariant &value)
{
    switch (value.userType()) {
    case QMetaType::SChar:
    case QMetaType::Short:
    case QMetaType::Int:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return IntegerKind::Signed;
    case QMetaType::UChar:
    case QMetaType::UShort:
    case QMetaType::UInt:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return IntegerKind::Unsigned;
    default:
        return IntegerKind::None;
    }
}
