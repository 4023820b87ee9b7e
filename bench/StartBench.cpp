// The start of the process, from the parent's call to the login on the screen, compared with an empty window of the
// same toolkit; and the time of each of the three times that a company is taken up meanwhile.

#include "Pairs.h"
#include "SampleDrive.h"

#include <array>
#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Start {
    double shown = 0; ///< seconds
    std::vector<double> companies;
};

Start started(const std::string& program) {
    const auto called =
        std::chrono::duration_cast<std::chrono::nanoseconds>(std::chrono::steady_clock::now().time_since_epoch())
            .count();
    const std::string command = std::string(PROBE_FOLDER) + "/" + program + " " + std::to_string(called);
    FILE* pipe =
        popen(command.c_str(), "r"); // NOLINT(bugprone-command-processor,cert-env33-c): a program of this build
    if (!pipe) {
        throw std::runtime_error("can't start " + program);
    }
    Start start;
    std::array<char, 256> line{};
    while (std::fgets(line.data(), line.size(), pipe)) {
        double number = 0;
        if (std::sscanf(line.data(), "shown %lf", &number) == 1) {
            start.shown = number / 1e9;
        } else if (std::sscanf(line.data(), "ApriAzienda %lf", &number) == 1) {
            start.companies.push_back(number);
        }
    }
    if (pclose(pipe) != 0 || start.shown == 0) {
        throw std::runtime_error(program + " didn't show its window");
    }
    return start;
}

void StartToLogin(benchmark::State& state) {
    const bench::SampleDrive drive;
    started("vabo-bench-start-probe"); // not measured: the first start creates the temporary database
    for (auto _ : state) {
        const Start ours = started("vabo-bench-start-probe");
        const Start empty = started("vabo-bench-start-empty");
        state.SetIterationTime(ours.shown);
        state.counters["empty_ms"] = empty.shown * 1e3;
        state.counters["ratio"] = ours.shown / empty.shown;
        for (std::size_t i = 0; i < ours.companies.size(); ++i) {
            state.counters["company" + std::to_string(i + 1) + "_ms"] = ours.companies[i];
        }
    }
}
BENCHMARK(StartToLogin)->Apply(bench::inPairs);

} // namespace

BENCHMARK_MAIN();
