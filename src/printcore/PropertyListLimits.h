#pragma once

/// What keeps property lists within bounds.
namespace PropertyListLimits {
/// The greatest number of arrays and dictionaries around a value.
constexpr int kDepth = 256;
} // namespace PropertyListLimits
