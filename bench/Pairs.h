#pragma once

// Two neighbours in time, ours and a raw one: what is read of them is the median of their ratios.

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

/// One pair a repetition, its aggregates alone in the report.
inline void inPairs(benchmark::internal::Benchmark* benchmark) {
    benchmark->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(1)->Repetitions(kPairs);
    benchmark->ReportAggregatesOnly();
}

} // namespace bench
