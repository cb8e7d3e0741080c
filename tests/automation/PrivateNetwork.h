// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

/// A network of this process and its children, with the loopback address alone, on which printers
/// can be announced without anybody else hearing of it.
namespace PrivateNetwork {
/// The name of the host that Avahi announces, which resolves to the loopback address.
inline constexpr char announcedHost[] = "printer.local";

/// Moves the process there, for good. What it must not share, /run and /etc/hosts, is its own, too.
///
/// @return null, or why that fails, as it does for all users but root.
QString enter();
} // namespace PrivateNetwork
