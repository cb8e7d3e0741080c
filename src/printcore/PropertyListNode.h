#pragma once

#include <QByteArray>

#include <plist/plist.h>

#include <memory>

/// libplist's nodes as owned pointers, and what its functions for single values leave out.
namespace PropertyListNode {
struct Deleter
{
    void operator()(plist_t node) const { plist_free(node); }
};
/// A node with all below it.
using Pointer = std::unique_ptr<void, Deleter>;

/// The first byte of a binary integer of 16 bytes, which is how an unsigned one is told.
constexpr char kWideIntegerMarker = 0x14;
/// The first byte of a binary date; the seconds since the start of 2001 follow as a double.
constexpr char kDateMarker = 0x33;

/// Whether the data says that it is a binary property list.
bool isBinary(const QByteArray &data);

/// The property list of either format as nodes; null when libplist does not take it.
Pointer fromData(const QByteArray &data);

/// The node and all below it as a binary property list.
QByteArray toBinary(plist_t node);
/// The node and all below it as an XML property list.
QByteArray toXML(plist_t node);

/// A node made from the bytes that stand for a single value in a binary property list.
Pointer fromObject(const QByteArray &object);
/// The bytes that stand for a node of a single value in a binary property list.
QByteArray toObject(plist_t node);
} // namespace PropertyListNode
