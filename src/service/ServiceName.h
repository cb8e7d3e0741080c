// SPDX-License-Identifier: Apache-2.0
#pragma once

/// How the panel service is reached on the session bus. An incompatible change gets another number
/// in the bus name and the interface.
namespace ServiceName {
inline constexpr char bus[] = "example.korvane.KvPrint1";
inline constexpr char path[] = "/example/korvane/KvPrint1";
inline constexpr char interface[] = "example.korvane.KvPrint1.Panels";
/// The error that tells a caller that its user wants no panels in it.
inline constexpr char switchedOff[] = "example.korvane.KvPrint1.Error.SwitchedOff";
} // namespace ServiceName
