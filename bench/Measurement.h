// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>
#include <string>

/// How a measurement becomes one of Google Benchmark's.
namespace Measurement {
using Clock = std::chrono::steady_clock;
using Body = std::function<void(benchmark::State &)>;

/// Adds a measurement. An exception of the body ends the whole run.
benchmark::internal::Benchmark *add(const std::string &name, const Body &body);

/// Adds a measurement of something that takes microseconds.
void addShort(const std::string &name, const Body &body);
} // namespace Measurement
