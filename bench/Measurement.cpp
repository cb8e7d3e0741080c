// SPDX-License-Identifier: Apache-2.0
#include "bench/Measurement.h"

#include "bench/Interruption.h"

namespace {
constexpr int shortRepetitions = 9;
constexpr double shortSeconds = 0.02;
} // namespace

benchmark::internal::Benchmark *Measurement::add(const std::string &name, const Body &body)
{
    return benchmark::RegisterBenchmark(name.c_str(), [body](benchmark::State &state) {
        Interruption::check();
        body(state);
    });
}

void Measurement::addShort(const std::string &name, const Body &body)
{
    add(name, body)->MinTime(shortSeconds)->Repetitions(shortRepetitions);
}
