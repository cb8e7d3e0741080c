#pragma once

#include <QString>

/// The files of a bundle, in a folder where a test may spoil them.
namespace BundleTree {
/// Copies a bundle's folder. There are more than a hundred pictures, so these are hard links, where
/// the file system allows that.
bool copy(const QString &from, const QString &to);

/// To be called before a file of a copy is changed in its place: makes it a file of its own.
bool separate(const QString &file);
} // namespace BundleTree
