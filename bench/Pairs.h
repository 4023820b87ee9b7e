#pragma once

// Pairs of measurements, the program's and a raw one, taken one after the other. The result is the median of their
// ratios.

#include <benchmark/benchmark.h>

#include <chrono>

namespace bench {

inline constexpr int kPairs = 21;

template<typename Work>
double seconds(Work&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

inline void report(benchmark::State& state, double ours, double raw) {
    state.SetIterationTime(ours);
    state.counters["ratio"] = ours / raw;
    state.counters["raw_ms"] = raw * 1e3;
}

/// One pair per repetition; only the aggregates are reported.
inline void inPairs(benchmark::internal::Benchmark* benchmark) {
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(kPairs);
    benchmark->ReportAggregatesOnly();
}

} // namespace bench
