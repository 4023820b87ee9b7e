#include "app/monkey/Story.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstring>
#include <string_view>
#include <unistd.h>

// Only a process with a sanitizer has it.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's own name
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

namespace monkey::story {

namespace {

constexpr std::size_t kSteps = 300;
using Line = std::array<char, 220>;

std::array<Line, kSteps> lines;
std::size_t told = 0; // in all
Line headline{};

void put(Line& line, std::string_view text) {
    const std::size_t length = std::min(text.size(), line.size() - 1);
    std::memcpy(line.data(), text.data(), length);
    line[length] = '\0';
}

template<typename Visit>
void visitLines(Visit&& visit) {
    visit(headline.data());
    for (std::size_t step = told - std::min(told, kSteps); step < told; ++step) {
        visit(lines[step % kSteps].data());
    }
}

void dieBySignal(int signal) {
    print();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

} // namespace

void printAtDeath(const std::string& text) {
    put(headline, text);
    if (&__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(print);
    } else {
        for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL}) {
            std::signal(signal, dieBySignal);
        }
    }
    std::signal(SIGABRT, dieBySignal);
}

void tell(const QString& step) {
    put(lines[told % kSteps], step.toStdString());
    ++told;
}

void begin() {
    told = 0;
}

std::string text() {
    std::string all;
    visitLines([&all](const char* line) { (all += line) += '\n'; });
    return all;
}

void print() {
    visitLines([](const char* line) {
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line, std::strlen(line));
        [[maybe_unused]] const auto ended = ::write(STDERR_FILENO, "\n", 1);
    });
}

} // namespace monkey::story
