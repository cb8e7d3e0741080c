#pragma once

#include "printcore/PropertyListNode.h"

#include <QString>
#include <QVariant>

/// Makes variants of libplist's nodes.
namespace PropertyListReader {
/// The value of a node with all below it; an invalid variant when it holds another type than
/// property lists have in PropertyList.
QVariant value(plist_t node);
} // namespace PropertyListReader
