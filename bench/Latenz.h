#pragma once

#include <algorithm>
#include <ctime>
#include <vector>

#include <benchmark/benchmark.h>

/// How long a single answer takes: as processor time, since a shared machine interrupts at any moment.
namespace zerna {

inline double processorMilliseconds() { return 1e3 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

/// Median and 99th percentile become counters of the benchmark.
inline void reportLatency(benchmark::State& state, std::vector<double> milliseconds)
{
    std::ranges::sort(milliseconds);
    state.counters["p50_ms"] = milliseconds[milliseconds.size() / 2];
    state.counters["p99_ms"] = milliseconds[milliseconds.size() * 99 / 100];
}

} // namespace zerna
